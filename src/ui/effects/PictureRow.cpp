#include "ui/effects/PictureRow.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "core/image/SmallPicture.h"
#include "formats/SettingsFile.h"
#include "ui/DroppedFiles.h"
#include "ui/FileFilters.h"

namespace tavrin {

namespace {

constexpr QSize kSmall(48, 32);
constexpr int kLongestName = 26;  // letters of a file's name; the tip has all of it

}  // namespace

PictureRow::PictureRow(const PictureSetting& setting, Binder& binder, QWidget* parent)
    : QWidget(parent),
      setting_(setting),
      binder_(binder),
      button_(new QToolButton(this)),
      cross_(new QToolButton(this)),
      problem_(new QLabel(this)) {
    setAcceptDrops(true);
    setAccessibleName(ControlRow::translated(setting.label));
    readers_.setMaxThreadCount(1);
    button_->setObjectName(setting.control);
    button_->setProperty("handler", setting.load);
    button_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button_->setIconSize(kSmall);
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button_, &QToolButton::clicked, this, &PictureRow::choose);
    cross_->setObjectName(QString(setting.control) + "Clear");
    cross_->setProperty("handler", setting.clear);
    cross_->setProperty("quiet", true);
    cross_->setText(QStringLiteral("\u00d7"));
    cross_->setToolTip(tr("Take the picture away"));
    cross_->setAccessibleName(tr("%1: none").arg(accessibleName()));
    cross_->setFocusPolicy(Qt::TabFocus);
    connect(cross_, &QToolButton::clicked, this, &PictureRow::clear);
    problem_->setObjectName(QString(setting.control) + "Problem");
    problem_->setWordWrap(true);
    problem_->hide();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(2);
    layout->addWidget(button_, 0, 0);
    layout->addWidget(cross_, 0, 1);
    layout->addWidget(problem_, 1, 0, 1, 2);
    connect(&binder, &Binder::shown, this, &PictureRow::refresh);
    shown_ = "?";  // nothing yet
    refresh();
}

void PictureRow::choose() {
    const QLXInfo& settings = *binder_.editor().info().oQLXInfo;
    const std::string last = setting_.lastFile ? standardizePath(settings.*setting_.lastFile) : "";
    const QString folder = last.empty() ? textOfName(setting_.folder()) : QFileInfo(textOfName(last)).path();
    auto* dialog = new QFileDialog(this, ControlRow::translated(setting_.dialogTitle), folder, pictureFilter());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &PictureRow::take);
    dialog->open();
}

void PictureRow::take(const QString& path) {
    read(nameOfText(path), true);
}

/// Decoding takes as long as it takes, and a disk may be far away.
void PictureRow::read(const std::string& path, bool toTake) {
    const int count = ++readCount_;
    readers_.start([this, path, toTake, count] {
        const ReadPicture small = readSmallPicture(path, kSmall.width() * 2);
        QMetaObject::invokeMethod(
            this,
            [this, path, toTake, count, small] {
                if (count != readCount_) return;
                if (small.pixels.isNull()) {
                    tell(tr("%1 cannot be read: %2.")
                             .arg(QFileInfo(textOfName(path)).fileName(), QString::fromStdString(small.error)));
                    return;
                }
                showPicture(path, small.pixels);
                if (toTake) takeRead(path);
            },
            Qt::QueuedConnection);
    });
}

void PictureRow::takeRead(const std::string& path) {
    binder_.run(accessibleName(), [&](SettingEditor& editor) {
        editor.set(setting_.file, path);
        if (*setting_.onValue) editor.set(setting_.on, setting_.onValue);
    });
    if (!setting_.lastFile) return;
    QLXInfo& settings = *binder_.editor().info().oQLXInfo;
    settings.*setting_.lastFile = path;
    tell(QString::fromStdString(SaveQLXFile(settings)));
}

void PictureRow::clear() {
    tell({});
    binder_.run(tr("%1: none").arg(accessibleName()), [this](SettingEditor& editor) {
        if (*setting_.offValue) editor.set(setting_.on, setting_.offValue);
        if (!setting_.keepsFile) editor.set(setting_.file, "");
    });
}

/// As the setting is now, which undo or a state may have changed.
void PictureRow::refresh() {
    const std::string path = file();
    cross_->setEnabled(!path.empty());
    if (path == shown_) return;
    showPicture(path, {});
    if (!path.empty()) read(path, false);
}

void PictureRow::showPicture(const std::string& path, const QImage& small) {
    shown_ = path;
    tell({});
    const QString name = QFileInfo(textOfName(path)).fileName();
    const QString none =
        setting_.none ? ControlRow::translated(setting_.none) : tr("Choose: %1...").arg(accessibleName());
    const QString words = path.empty() ? none : name;
    button_->setText(!path.empty() && words.size() > kLongestName
                         ? words.left(kLongestName - 8) + QStringLiteral("\u2026") + words.right(7)
                         : words);
    const QString tip = ControlRow::translated(setting_.toolTip);
    button_->setToolTip(path.empty() ? tip : tip + '\n' + textOfName(path));
    button_->setAccessibleName(path.empty() ? words : tr("%1: %2").arg(accessibleName(), name));
    button_->setIcon(small.isNull() ? QIcon() : QIcon(QPixmap::fromImage(small)));
}

std::string PictureRow::file() const {
    const SettingEditor& editor = binder_.editor();
    if (setting_.keepsFile && editor.value(setting_.on) == setting_.offValue) return "";
    return editor.value(setting_.file);
}

QString PictureRow::problem() const {
    return problem_->text();
}

void PictureRow::tell(const QString& problem) {
    problem_->setText(problem);
    problem_->setVisible(!problem.isEmpty());
}

void PictureRow::dragEnterEvent(QDragEnterEvent* event) {
    if (droppedFiles(event->mimeData()).size() == 1) event->acceptProposedAction();
}

void PictureRow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    if (const QStringList files = droppedFiles(event->mimeData()); files.size() == 1) take(files[0]);
}

}  // namespace tavrin
