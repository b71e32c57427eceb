#include "ui/batch/BatchChoices.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrin {

BatchChoices::BatchChoices(BatchEngine& engine, const QLXInfo& settings, QWidget* parent)
    : QWidget(parent),
      engine_(engine),
      settings_(settings),
      type_(new QButtonGroup(this)),
      style_(new QButtonGroup(this)),
      watch_(makeBox("checkboxBatchWatch", "changeBatchCheckbox:", tr("Go on as files arrive"),
                     tr("A run does not end; it takes portraits, backgrounds and states as they come"))),
      lowResolution_(makeBox("checkboxBatchLowResolution", "changeBatchCheckbox:", tr("Low resolution (kept only)"),
                             tr("Is kept with the settings; a run makes full pictures all the same"))),
      subfolders_(makeBox("checkboxNamedSubfolder",
                          "checkboxNamedSubfolderClicked:", tr("Subfolders are named like their background"),
                          tr("Portraits lie in subfolders of the portraits' folder; each is laid over the background "
                             "of its subfolder's name"))),
      list_(makeBox("checkboxUseXML", "checkboxUseXMLClicked:", tr("Take the jobs from a list file"),
                    tr("The first XML file in the portraits' folder says what is made; it is moved into the folder "
                       "SavedXML there as soon as it is read"))) {
    setObjectName("batchChoices");
    setAccessibleName(tr("Type and names of the pictures, watching, lists"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeRadio(type_, "radioBatchOutputType", tr("File type"),
                                {{tr("JPEG"), tr("Small files")},
                                 {tr("PNG"), tr("Without loss, and can be clear in parts")},
                                 {tr("TIFF"), tr("Without loss, for printers")}}));
    column->addWidget(
        makeRadio(style_, "radioBatchOutputStyle", tr("Names"),
                  {{tr("Joined"), tr("The names of portrait, background and state, one behind the other")},
                   {tr("Numbers"), tr("BatchFile1, BatchFile2 and so on; what lies there stays")},
                   {tr("Folders"), tr("A folder for each background, and in it one for each state")}}));
    for (QCheckBox* box : {watch_, subfolders_, list_, lowResolution_})
        column->addWidget(box);
    const auto pass = [this](const auto& change) {
        return [this, change] {
            change();
            emit changed();
        };
    };
    connect(type_, &QButtonGroup::idToggled, this, [this](int key, bool on) {
        if (!on) return;
        engine_.changeBatchOutputType(std::to_string(key));
        emit changed();
    });
    connect(style_, &QButtonGroup::idToggled, this, [this](int key, bool on) {
        if (!on) return;
        engine_.changeBatchOutputStyle(std::to_string(key));
        emit changed();
    });
    for (QCheckBox* box : {watch_, lowResolution_})
        connect(box, &QCheckBox::toggled, this,
                pass([this] { engine_.changeBatchCheckbox(watch_->isChecked(), lowResolution_->isChecked()); }));
    connect(subfolders_, &QCheckBox::toggled, this,
            pass([this] { engine_.checkboxNamedSubfolderClicked(subfolders_->isChecked()); }));
    connect(list_, &QCheckBox::toggled, this, pass([this] { engine_.checkboxUseXMLClicked(list_->isChecked()); }));
    refresh();
}

QWidget* BatchChoices::makeRadio(QButtonGroup* group, const char* name, const QString& label,
                                 const std::vector<std::pair<QString, QString>>& choices) {
    auto* line = new QWidget(this);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(new QLabel(label, line), 1);
    int key = 0;
    for (const auto& [text, toolTip] : choices) {
        auto* button = new QToolButton(line);
        button->setObjectName(name + QString::number(++key));
        button->setProperty("handler", QString(name).replace("radioBatch", "changeBatch") + ":");
        button->setText(text);
        button->setAccessibleName(tr("%1: %2").arg(label, text));
        button->setToolTip(toolTip);
        button->setProperty("segment", true);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        group->addButton(button, key);
        layout->addWidget(button, 1);
    }
    return line;
}

QCheckBox* BatchChoices::makeBox(const char* name, const char* handler, const QString& text, const QString& toolTip) {
    auto* box = new QCheckBox(text, this);
    box->setObjectName(name);
    box->setProperty("handler", handler);
    box->setAccessibleName(text);
    box->setToolTip(toolTip);
    return box;
}

/// Numbers beyond the choices, as an account has them at first, stand for the first one.
void BatchChoices::refresh() {
    for (const auto& [group, value] : {std::pair(type_, settings_.iLastBatchLastOutputFileType.load()),
                                       std::pair(style_, settings_.iLastBatchLastOutputStyle.load())}) {
        const QSignalBlocker quiet(group);
        QAbstractButton* button = group->button(value);
        (button ? button : group->button(1))->setChecked(true);
    }
    for (const auto& [box, on] : {std::pair(watch_, settings_.bLastBatchCheckForNewFiles.load()),
                                  std::pair(lowResolution_, settings_.bLastBatchOutputLowResolution.load()),
                                  std::pair(subfolders_, settings_.bUseBackgroundSubfolders.load()),
                                  std::pair(list_, settings_.bUseBatchXMLFile.load())}) {
        const QSignalBlocker quiet(box);
        box->setChecked(on);
    }
}

}  // namespace tavrin
