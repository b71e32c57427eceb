#include "ui/look/LookDesk.h"

#include <algorithm>

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

#include "core/files/NameText.h"
#include "ui/FileFilters.h"
#include "ui/look/LookDialog.h"

namespace tavrin {

namespace {

QString lookFilter() {
    return LookDesk::tr("Looks and state files (*.qlx)");
}

}  // namespace

QString lookPictureFile(const QString& name) {
    QString file = textOfName(lookFile(nameOfText(name)));
    file.chop(4);
    return file + ".png";
}

LookDesk::LookDesk(Binder& binder, Safekeeping& keeping, QWidget* window)
    : QObject(window), binder_(binder), keeping_(keeping), window_(window) {}

void LookDesk::copy() {
    copied_ = lookOf(binder_.editor().info());
    emit told(tr("The look is copied. Ctrl+Shift+V pastes it on another portrait."));
}

QString LookDesk::nameOf(const std::string& setting) const {
    const auto stop = setting.find('.');
    const std::string key = stop == std::string::npos ? setting : setting.substr(stop + 1);
    for (const ControlRow* row : binder_.rows()) {
        const Binding& binding = row->binding();
        if (binding.setting != key) continue;
        const QString label = ControlRow::translated(binding.label);
        if (setting.starts_with("foreground.")) return tr("Portrait: %1").arg(label);
        if (setting.starts_with("background.")) return tr("Background: %1").arg(label);
        return label;
    }
    return {};
}

void LookDesk::choose(const QString& title, const SettingValues& look,
                      const std::function<void(const SettingValues& wanted)>& take) {
    const std::vector<LookChange> changes = changesBy(binder_.editor().info(), look);
    if (changes.empty()) return emit told(tr("This portrait has that look already."));
    auto* dialog = new LookDialog(
        title, changes, [this](const std::string& setting) { return nameOf(setting); }, window_);
    connect(dialog, &QDialog::accepted, this, [dialog, look, take] { take(partsOf(look, dialog->parts())); });
    dialog->open();
}

void LookDesk::takeHere(const QString& label, const SettingValues& look) {
    binder_.run(label, [&](SettingEditor& editor) { takeLook(editor, label.toStdString(), look); });
}

void LookDesk::paste() {
    if (!hasCopy()) return emit told(tr("No look was copied yet. Ctrl+Shift+C copies the present one."));
    choose(tr("Paste a Look"), copied_,
           [this](const SettingValues& wanted) { takeHere(tr("Paste a look"), wanted); });
}

/// What differs from one portrait to the next is not known before they are opened, so all parts are there to choose.
void LookDesk::pasteOn(const QStringList& portraits) {
    if (!hasCopy()) return emit told(tr("No look was copied yet. Ctrl+Shift+C copies the present one."));
    std::vector<LookChange> parts;
    for (const auto& [setting, value] : copied_)
        if (const auto part = partOf(setting)) parts.push_back({*part, setting, "", value});
    auto* dialog = new LookDialog(
        tr("Paste a Look on %1 Portraits").arg(portraits.size()), parts,
        [this](const std::string& setting) { return nameOf(setting); }, window_);
    connect(dialog, &QDialog::accepted, this, [this, dialog, portraits] {
        const SettingValues wanted = partsOf(copied_, dialog->parts());
        const std::string shown = binder_.editor().value("foreground.sSourceImageFullPath");
        std::vector<std::string> others;
        for (const QString& portrait : portraits)
            if (nameOfText(portrait) != shown) others.push_back(nameOfText(portrait));
        if (others.size() != static_cast<std::size_t>(portraits.size())) takeHere(tr("Paste a look"), wanted);
        if (!others.empty()) keeping_.pasteOn(std::move(others), tr("Paste a look"), wanted);
    });
    dialog->open();
}

void LookDesk::pasteOnSelected() {
    if (!hasCopy()) return pasteOn({});
    if (const QStringList selected = selection_ ? selection_() : QStringList(); selected.size() > 1)
        return pasteOn(selected);
    const QStringList portraits =
        QFileDialog::getOpenFileNames(window_, tr("Select Portraits for the Look"), QString(), pictureFilter());
    if (!portraits.isEmpty()) pasteOn(portraits);
}

bool LookDesk::isDone(const QString& line, const std::string& problem) {
    if (!problem.empty()) emit failed(line, QString::fromStdString(problem));
    return problem.empty();
}

void LookDesk::saveAs() {
    bool wanted = false;
    const QString name = QInputDialog::getText(window_, tr("Save Look"), tr("Name of the look:"), QLineEdit::Normal,
                                               textOfName(freeLookName(nameOfText(tr("Look")))), &wanted);
    if (!wanted) return;
    const bool taken = QFile::exists(textOfName(lookFile(nameOfText(name.trimmed()))));
    if (taken &&
        QMessageBox::question(window_, "Tavrin", tr("There is a look %1 already. Replace it?").arg(name),
                              QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel) != QMessageBox::Yes)
        return;
    save(name.trimmed());
}

bool LookDesk::save(const QString& name) {
    const SettingValues settings = settingsOf(binder_.editor().info());
    if (!isDone(tr("The look is not saved."), saveLook(settings, nameOfText(name)))) return false;
    constexpr int kSide = 96;
    if (const QImage picture = picture_ ? picture_() : QImage(); !picture.isNull())
        picture.scaled(kSide, kSide, Qt::KeepAspectRatio, Qt::SmoothTransformation).save(lookPictureFile(name));
    emit told(tr("Saved the look %1").arg(name));
    emit changed();
    return true;
}

void LookDesk::take(const QString& name) {
    SettingValues look;
    if (!isDone(tr("The look cannot be taken."), readLook(binder_.editor().info(), lookFile(nameOfText(name)), look)))
        return;
    choose(tr("Take the Look %1").arg(name), look,
           [this, name](const SettingValues& wanted) { takeHere(tr("Look %1").arg(name), wanted); });
}

void LookDesk::rename(const QString& name) {
    bool wanted = false;
    const QString to = QInputDialog::getText(window_, tr("Rename Look"), tr("New name of %1:").arg(name),
                                             QLineEdit::Normal, name, &wanted)
                           .trimmed();
    if (!wanted || to == name) return;
    if (!isDone(tr("The look keeps its name."), renameLook(nameOfText(name), nameOfText(to)))) return;
    QFile::rename(lookPictureFile(name), lookPictureFile(to));
    emit changed();
}

void LookDesk::remove(const QString& name) {
    const std::string look = nameOfText(name);
    if (!isDone(tr("The look is not deleted."), deleteLook(look))) return;
    binder_.run(tr("Delete the look %1").arg(name), [&](SettingEditor& editor) {
        editor.note({[this, look] {
                         isDone(tr("The look does not come back."), restoreLook(look));
                         emit changed();
                     },
                     [this, look] {
                         isDone(tr("The look is not deleted."), deleteLook(look));
                         emit changed();
                     }});
    });
    emit told(tr("Deleted the look %1. Undo brings it back.").arg(name));
    emit changed();
}

void LookDesk::askForImport() {
    const QString file = QFileDialog::getOpenFileName(window_, tr("Import Look"), QString(), lookFilter());
    if (!file.isEmpty()) import(file);
}

void LookDesk::import(const QString& file) {
    const QString name = QFileInfo(file).completeBaseName();
    if (!QFile::exists(textOfName(lookFile(nameOfText(name))))) return import(file, OnEqualName::replace);
    auto* box = new QMessageBox(QMessageBox::Question, "Tavrin", tr("There is a look %1 already.").arg(name),
                                QMessageBox::NoButton, window_);
    box->setObjectName("equalNames");
    box->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* id, const QString& text, OnEqualName equal) {
        QPushButton* button = box->addButton(text, QMessageBox::AcceptRole);
        button->setObjectName(id);
        connect(button, &QPushButton::clicked, this, [this, file, equal] { import(file, equal); });
    };
    add("equalSkip", tr("&Skip It"), OnEqualName::skip);
    add("equalRename", tr("Import under &Another Name"), OnEqualName::rename);
    add("equalReplace", tr("&Replace the Old One"), OnEqualName::replace);
    box->open();
}

void LookDesk::import(const QString& file, OnEqualName equal) {
    const QString wanted = QFileInfo(file).completeBaseName();
    if (equal == OnEqualName::skip)
        return emit told(tr("Nothing was imported; the look %1 is the old one.").arg(wanted));
    const std::string name = equal == OnEqualName::rename ? freeLookName(nameOfText(wanted)) : nameOfText(wanted);
    if (!isDone(tr("The look is not imported."), importLook(binder_.editor().info(), nameOfText(file), name))) return;
    QFile::remove(lookPictureFile(textOfName(name)));  // of an older look
    emit told(tr("Imported %1 as the look %2").arg(QFileInfo(file).fileName(), textOfName(name)));
    emit changed();
}

void LookDesk::exportTo(const QString& name) {
    QString file = QFileDialog::getSaveFileName(window_, tr("Export Look"), name + ".qlx", lookFilter());
    if (file.isEmpty()) return;
    if (QFileInfo(file).suffix().isEmpty()) file += ".qlx";
    if (isDone(tr("The look is not exported."), exportLook(nameOfText(name), nameOfText(file))))
        emit told(tr("Exported the look %1 to %2").arg(name, file));
}

std::vector<Command> lookCommands(LookDesk& desk) {
    return {
        {"CopyLook",
         "|&Edit",
         LookDesk::tr("&Copy the Look"),
         LookDesk::tr("Takes the look of this portrait, to paste it on others"),
         "edit-copy",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
         {},
         [&desk](bool) { desk.copy(); }},
        {"PasteLook",
         "&Edit",
         LookDesk::tr("&Paste the Look..."),
         LookDesk::tr("Shows what the copied look changes here, and pastes what is ticked"),
         "edit-paste",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V),
         {},
         [&desk](bool) { desk.paste(); }},
        {"PasteLookOn",
         "&Edit",
         LookDesk::tr("Paste the Look on P&ortraits..."),
         LookDesk::tr("Pastes the copied look on many portraits at once"),
         "",
         {},
         {},
         [&desk](bool) { desk.pasteOnSelected(); }},
        {"SaveLook",
         "|&Edit",
         LookDesk::tr("Save as My &Look..."),
         LookDesk::tr("Keeps all settings under a name"),
         "",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L),
         {},
         [&desk](bool) { desk.saveAs(); }},
        {"ImportLook",
         "&Edit",
         LookDesk::tr("&Import a Look..."),
         LookDesk::tr("Takes a look or a state file into my looks"),
         "",
         {},
         {},
         [&desk](bool) { desk.askForImport(); }},
    };
}

}  // namespace tavrin
