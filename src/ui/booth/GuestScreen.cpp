#include "ui/booth/GuestScreen.h"

#include <algorithm>

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QListView>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QScroller>
#include <QToolButton>

#include "core/files/NameText.h"
#include "ui/strip/PictureDelegate.h"

namespace tavrin {

namespace {

constexpr double kTouch = 60.0;  // points: what a finger meets without looking twice
constexpr int kArrow = 24;       // points
constexpr QSize kItem(180, 180);

int pixelsOf(double points, const QWidget& on) {
    return static_cast<int>(std::ceil(points * on.logicalDpiX() / 72.0));
}

}  // namespace

/// The picture as large as there is room, on black.
class GuestScreen::Picture : public QWidget {
  public:
    using QWidget::QWidget;

    void show(const QImage& picture) {
        picture_ = picture;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        if (picture_.isNull()) return;
        QRect place(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatio));
        place.moveCenter(rect().center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, picture_);
    }

  private:
    QImage picture_;
};

GuestScreen::GuestScreen(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      picture_(new Picture(this)),
      list_({}),
      grid_(new QListView(this)),
      loader_([this](const std::string& path, const Thumbnail& thumbnail) {
          QMetaObject::invokeMethod(
              this, [this, path, thumbnail] { list_.takeThumbnail(path, thumbnail); }, Qt::QueuedConnection);
      }) {
    setObjectName("guestScreen");
    setWindowTitle(tr("Your picture"));
    setAttribute(Qt::WA_AcceptTouchEvents);
    soon_.setSingleShot(true);
    soon_.setInterval(15);
    connect(&soon_, &QTimer::timeout, this, &GuestScreen::fetch);
    layOut();
    resize(1024, 640);
}

void GuestScreen::layOut() {
    picture_->setObjectName("guestPicture");
    picture_->setAccessibleName(tr("Your picture"));
    grid_->setObjectName("guestBackgrounds");
    grid_->setAccessibleName(tr("Backgrounds to choose from"));
    grid_->setViewMode(QListView::IconMode);
    grid_->setMovement(QListView::Static);
    grid_->setResizeMode(QListView::Adjust);
    grid_->setUniformItemSizes(true);
    grid_->setGridSize(kItem);
    grid_->setItemDelegate(new PictureDelegate(grid_, kItem));
    grid_->setVerticalScrollMode(QListView::ScrollPerPixel);
    grid_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // fingers push the pictures themselves
    grid_->setFocusPolicy(Qt::NoFocus);
    grid_->setContextMenuPolicy(Qt::NoContextMenu);
    grid_->setModel(&list_);
    QScroller::grabGesture(grid_->viewport(), QScroller::TouchGesture);
    connect(grid_, &QListView::clicked, this,
            [this](const QModelIndex& index) { emit backgroundChosen(textOfName(list_.path(index.row()))); });
    connect(grid_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { soon_.start(); });
    auto* pages = new QHBoxLayout;
    pages->addWidget(makePager("guestBack", tr("Backgrounds before these"), QChar(0x25B2), -1));
    pages->addWidget(makePager("guestOn", tr("More backgrounds"), QChar(0x25BC), 1));
    auto* column = new QVBoxLayout;
    column->addWidget(grid_, 1);
    column->addLayout(pages);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(picture_, 3);
    row->addLayout(column, 2);
}

QToolButton* GuestScreen::makePager(const char* name, const QString& words, QChar arrow, int pages) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setProperty("handler", "showGuestScreen:");
    button->setAccessibleName(words);
    button->setText(QString(arrow));
    QFont large = button->font();
    large.setPointSize(kArrow);
    button->setFont(large);
    button->setMinimumHeight(pixelsOf(kTouch, *this));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, [this, pages] {
        QScrollBar* bar = grid_->verticalScrollBar();
        bar->setValue(bar->value() + pages * bar->pageStep() / kItem.height() * kItem.height());
    });
    return button;
}

void GuestScreen::appear(const QScreen* operators) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto other = std::ranges::find_if(screens, [&](const QScreen* one) { return one != operators; });
    if (other == screens.end()) {
        show();
    } else {
        setGeometry((*other)->geometry());
        showFullScreen();
    }
    soon_.start();
}

void GuestScreen::leave() {
    mayClose_ = true;
    close();
    deleteLater();
}

/// Neither a key of the desktop nor a touch takes it away.
void GuestScreen::closeEvent(QCloseEvent* event) {
    mayClose_ ? event->accept() : event->ignore();
}

void GuestScreen::keyPressEvent(QKeyEvent* event) {
    event->accept();
}

void GuestScreen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    soon_.start();
}

void GuestScreen::showPicture(const QImage& picture) {
    picture_->show(picture);
}

void GuestScreen::setBackgrounds(std::vector<std::string> paths) {
    if (list_.setPaths(std::move(paths))) soon_.start();
}

void GuestScreen::fetch() {
    const int columns = std::max(1, grid_->viewport()->width() / kItem.width());
    const int first = grid_->verticalScrollBar()->value() / kItem.height() * columns;
    const int last = first + (grid_->viewport()->height() / kItem.height() + 2) * columns - 1;
    list_.keepNear(first - 2 * (last - first), last + 2 * (last - first));
    std::vector<std::string> wanted = list_.wanted(first, last);
    const std::size_t seen = wanted.size();
    loader_.want(std::move(wanted), seen, ThumbnailSize::large);
}

}  // namespace tavrin
