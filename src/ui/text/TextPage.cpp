#include "ui/text/TextPage.h"

#include <algorithm>

#include <QFileDialog>
#include <QGridLayout>
#include <QListWidget>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/image/ImageReader.h"
#include "core/text/TextLayers.h"
#include "session/TextItems.h"
#include "ui/FileFilters.h"
#include "ui/text/ItemControls.h"
#include "ui/text/LabelGroups.h"

namespace tavrin {

namespace {

constexpr int kRowsShown = 5;
constexpr int kMostOfWords = 200;

/// What the list shows of an item: of long words the beginning, since it lays out all that it is given.
QString rowOf(const FontObject& item) {
    const QString text = textOfName(item.sText);
    const QString words = (item.isImage ? text : text.left(kMostOfWords)).simplified();
    return item.isImage ? TextPage::tr("IMAGE: %1").arg(words.section('/', -1)) : TextPage::tr("TEXT: %1").arg(words);
}

/// Where an item of this size in inches stands in the middle of the picture.
void putInMiddle(const SystemInfo& info, FontObject& item, double width, double height) {
    item.xPos = (info.dOutputImageWidthInInches - width) / 2.0;
    item.yPos = (info.dOutputImageHeightInInches - height) / 2.0;
}

}  // namespace

TextPage::TextPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelText", "TabText", 4, QT_TRANSLATE_NOOP("Panel", "Text"),
                 QT_TRANSLATE_NOOP("Panel", "Words and pictures on the picture")},
                parent),
      binder_(binder),
      list_(new QListWidget) {
    static const BindingGroup items{"groupItems", QT_TRANSLATE_NOOP("Panel", "Texts and pictures"), nullptr, {}};
    for (GroupBox* label : makeLabelGroups(binder, this))
        addGroup(label);
    GroupBox* group = addGroup(items, binder);
    group->addItem(makeList());
    group->addItem(makeButtons());
    textControls_ = makeTextControls(binder, this);
    imageControls_ = makeImageControls(binder, this);
    QToolButton* file = makeButton("buttonImageFile", "loadImageItem", tr("Another picture..."),
                                   tr("Puts another picture in the place of the selected one"));
    connect(file, &QToolButton::clicked, this,
            [this] { askForImage(tr("Choose a Picture"), &TextPage::replaceImage); });
    imageControls_->addItem(file);
    addGroup(textControls_);
    addGroup(imageControls_);
    connect(&binder, &Binder::shown, this, &TextPage::refresh);
    refresh();
}

QWidget* TextPage::makeList() {
    list_->setObjectName("myTableView");
    list_->setProperty("handler", "changedSelection:");
    list_->setAccessibleName(tr("Texts and pictures"));
    list_->setToolTip(tr("What is drawn first stands first; drag to change the order"));
    list_->setDragDropMode(QAbstractItemView::InternalMove);
    list_->setFixedHeight(kRowsShown * (list_->fontMetrics().height() + 6));
    connect(list_, &QListWidget::currentRowChanged, this, &TextPage::changedSelection);
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { EditTextImage(list_->currentRow()); });
    connect(
        list_->model(), &QAbstractItemModel::rowsMoved, this,
        [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
            const int target = to > from ? to - 1 : to;
            binder_.editor().info().iSelectedFontObject = target;
            binder_.run(tr("Order of the items"), [&](SettingEditor& editor) {
                moveItem(editor, static_cast<std::size_t>(from), static_cast<std::size_t>(target));
            });
        },
        Qt::QueuedConnection);  // the list is still at it
    return list_;
}

QWidget* TextPage::makeButtons() {
    auto* buttons = new QWidget;
    buttons->setAccessibleName(tr("Add, edit and delete"));
    auto* layout = new QGridLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    QToolButton* text = makeButton("buttonAddText", "addText:", tr("Add text"), tr("Puts a new text on the picture"));
    QToolButton* image = makeButton("buttonAddImage", "addImage:", tr("Add picture..."),
                                    tr("Puts a picture, such as a logo, on the picture"));
    edit_ = makeButton("buttonEditItem", "EditTextImage:", tr("Edit"), tr("Shows the controls of the selected item"));
    delete_ = makeButton("buttonDeleteItem", "deleteTextItemRow", tr("Delete"), tr("Takes the selected item away"));
    earlier_ = makeButton("buttonItemEarlier", "moveItem", tr("Further down"),
                          tr("Draws the selected item earlier, so that the others cover it"));
    later_ = makeButton("buttonItemLater", "moveItem", tr("Further up"),
                        tr("Draws the selected item later, so that it covers the others"));
    connect(text, &QToolButton::clicked, this, &TextPage::addText);
    connect(image, &QToolButton::clicked, this, [this] { askForImage(tr("Add a Picture"), &TextPage::addImage); });
    connect(edit_, &QToolButton::clicked, this, [this] { EditTextImage(list_->currentRow()); });
    connect(delete_, &QToolButton::clicked, this, [this] {
        binder_.run(tr("Delete an item"), [this](SettingEditor& editor) {
            removeItem(editor, static_cast<std::size_t>(list_->currentRow()));
        });
    });
    connect(earlier_, &QToolButton::clicked, this, [this] { move(-1); });
    connect(later_, &QToolButton::clicked, this, [this] { move(1); });
    cancel_ =
        makeButton("buttonCancelItem", "cancelTextDialog:, cancelImageTextDialog:, restoreFontObject:", tr("Cancel"),
                   tr("Takes back what was done to the item since it was selected; a new one goes"));
    connect(cancel_, &QToolButton::clicked, this, &TextPage::cancelTextDialog);
    int at = 0;
    for (QToolButton* button : {text, image, edit_, delete_, earlier_, later_, cancel_}) {
        layout->addWidget(button, at / 2, at % 2);
        ++at;
    }
    return buttons;
}

void TextPage::addText() {
    const SystemInfo& info = binder_.editor().info();
    FontObject item;
    item.sText = nameOfText(tr("Text"));
    fitTextBox(info, item);
    putInMiddle(info, item, item.rectSizeWidth / 72.0, item.rectSizeHeight / 72.0);
    add(item);
}

void TextPage::askForImage(const QString& title, void (TextPage::*take)(const QString& path)) {
    auto* dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("addImageDialog");
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(pictureFilter());
    connect(dialog, &QFileDialog::fileSelected, this, take);
    dialog->open();
}

/// Names the file and its size in the item. A file that is no picture is told.
bool TextPage::readImage(const QString& path, FontObject& item) {
    const PictureFacts facts = readPictureFacts(nameOfText(path));
    if (facts.width < 1) {
        emit binder_.told(
            tr("%1 cannot be read: %2.").arg(path.section('/', -1), QString::fromStdString(facts.error)));
        return false;
    }
    item.isImage = true;
    item.sText = nameOfText(path);
    item.imageSizeWidth = facts.width;
    item.imageSizeHeight = facts.height;
    return true;
}

void TextPage::addImage(const QString& path) {
    FontObject item;
    if (!readImage(path, item)) return;
    const SystemInfo& info = binder_.editor().info();
    const double scale = info.iOutputPixelWidth / 3.0 / item.imageSizeWidth;
    item.dGlobalScaleX = scale;
    item.dGlobalScaleY = scale;
    const double perInch = scale / std::max(1, info.iOutputImageDPI.load());
    putInMiddle(info, item, item.imageSizeWidth * perInch, item.imageSizeHeight * perInch);
    add(item);
}

void TextPage::replaceImage(const QString& path) {
    const SystemInfo& info = binder_.editor().info();
    const FontObject* before = selectedItem(info);
    if (!before || !before->isImage) return;
    FontObject item = *before;
    if (!readImage(path, item)) return;
    const double wider = before->imageSizeWidth / item.imageSizeWidth;
    item.dGlobalScaleX = item.dGlobalScaleX * wider;
    item.dGlobalScaleY = item.dGlobalScaleY * wider;
    binder_.run(tr("Another picture"), [&](SettingEditor& editor) {
        replaceItem(editor, static_cast<std::size_t>(info.iSelectedFontObject), item);
    });
}

void TextPage::add(const FontObject& item) {
    SystemInfo& info = binder_.editor().info();
    std::string problem;
    binder_.run(item.isImage ? tr("Add a picture") : tr("Add a text"), [&](SettingEditor& editor) {
        problem = addItem(editor, item);
        if (problem.empty()) info.iSelectedFontObject = info.iFontObjectCount() - 1;
    });
    if (!problem.empty()) return void(emit binder_.told(QString::fromStdString(problem)));
    saveFontObject(true);
    EditTextImage(info.iSelectedFontObject);
}

/// Notes how the selected item stands, to come back to.
void TextPage::saveFontObject(bool isNew) {
    const SettingEditor& editor = binder_.editor();
    const FontObject* item = selectedItem(editor.info());
    visit_ = {item ? editor.info().iSelectedFontObject.load() : -1, isNew, item ? *item : FontObject(),
              editor.position()};
}

/// Another item is selected, another state was loaded, or what was done before the visit was taken back.
bool TextPage::isVisitOver() const {
    const SettingEditor& editor = binder_.editor();
    if (visit_.row != editor.info().iSelectedFontObject) return true;
    if (visit_.begun == 0) return editor.steps().empty();
    const auto end = editor.steps().begin() + static_cast<std::ptrdiff_t>(editor.stepsDone());
    return std::find_if(editor.steps().begin(), end,
                        [this](const auto& step) { return step.number == visit_.begun; }) == end;
}

void TextPage::cancelTextDialog() {
    if (visit_.row < 0 || isVisitOver()) return;
    const auto row = static_cast<std::size_t>(visit_.row);
    const Visit visit = std::exchange(visit_, {});
    binder_.run(tr("Cancel"), [&](SettingEditor& editor) {
        visit.isNew ? removeItem(editor, row) : replaceItem(editor, row, visit.before);
    });
}

void TextPage::EditTextImage(int row) {
    select(row);
    const FontObject* item = selectedItem(binder_.editor().info());
    if (!item) return;
    GroupBox* controls = item->isImage ? imageControls_ : textControls_;
    emit wanted(controls->items().front());
}

void TextPage::select(int row) {
    SystemInfo& info = binder_.editor().info();
    if (info.iSelectedFontObject == row) return;
    info.iSelectedFontObject = row;
    binder_.UpdateAllUI();
}

void TextPage::changedSelection() {
    select(list_->currentRow());
    emit selected(list_->currentRow());
}

void TextPage::move(int by) {
    SystemInfo& info = binder_.editor().info();
    const int from = list_->currentRow(), to = from + by;
    if (from < 0 || to < 0 || to >= info.iFontObjectCount()) return;
    info.iSelectedFontObject = to;
    visit_.row = to;
    binder_.run(tr("Order of the items"), [&](SettingEditor& editor) {
        moveItem(editor, static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    });
}

/// A state that was loaded may have fewer items.
void TextPage::refresh() {
    SystemInfo& info = binder_.editor().info();
    const QSignalBlocker quiet(list_);
    while (list_->count() > info.iFontObjectCount())
        delete list_->takeItem(list_->count() - 1);
    int row = 0;
    for (const FontObject& item : info.oFontObject) {
        if (row == list_->count()) list_->addItem(QString());
        if (const QString text = rowOf(item); list_->item(row)->text() != text) list_->item(row)->setText(text);
        ++row;
    }
    if (info.iSelectedFontObject >= info.iFontObjectCount()) info.iSelectedFontObject = info.iFontObjectCount() - 1;
    list_->setCurrentRow(info.iSelectedFontObject);
    if (isVisitOver()) saveFontObject(false);
    cancel_->setEnabled(visit_.row >= 0 && (visit_.isNew || visit_.begun != binder_.editor().position()));
    const bool any = selectedItem(info) != nullptr;
    for (QToolButton* button : {edit_, delete_, earlier_, later_})
        button->setEnabled(any);
}

}  // namespace tavrin
