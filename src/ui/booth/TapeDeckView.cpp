#include "ui/booth/TapeDeckView.h"

#include <algorithm>
#include <filesystem>

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include "core/files/NameText.h"
#include "folders/NextFileInFolder.h"

namespace tavrin {

namespace {

constexpr QSize kPicture(104, 104);
constexpr std::size_t kMostKept = 60;  // small pictures, so that paging back shows them at once
constexpr auto kStillCopied = std::chrono::seconds(10);

/// Bars and triangles of a tape deck.
QIcon tapeIcon(int button, const QPalette& palette) {
    QPixmap pixels(48, 48);
    pixels.setDevicePixelRatio(2.0);
    pixels.fill(Qt::transparent);
    QPainterPath shape;
    const auto triangle = [&](double from, double to) {
        shape.moveTo(from, 5);
        shape.lineTo(to, 12);
        shape.lineTo(from, 19);
        shape.closeSubpath();
    };
    if (button == 3) {
        triangle(7, 18);
    } else {
        triangle(4, 12);
        triangle(12, 20);
        if (button == 1 || button == 5) shape.addRect(20, 5, 2, 14);
    }
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    if (button < 3) {
        painter.translate(24, 0);
        painter.scale(-1, 1);
    }
    painter.fillPath(shape, palette.buttonText());
    return QIcon(pixels);
}

/// What stands for a file that is no picture, so that the strip goes on.
QImage brokenPicture() {
    QImage picture(kPicture, QImage::Format_RGB32);
    picture.fill(QColor(90, 90, 90));
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::white, 4));
    painter.drawLine(38, 38, 66, 66);
    painter.drawLine(66, 38, 38, 66);
    return picture;
}

bool mayStillBeCopied(const std::string& path) {
    std::error_code problem;
    const auto changed = std::filesystem::last_write_time(path, problem);
    return problem || std::filesystem::file_time_type::clock::now() - changed < kStillCopied;
}

}  // namespace

TapeDeckView::TapeDeckView(const DeckNames& names, std::function<bool(const std::string& stem)> isServed,
                           QWidget* parent)
    : QWidget(parent),
      deck_([this](const std::string& path) { return pictureOf(path); }, std::move(isServed), [this] { show(); }),
      loader_([this](const std::string& path, Thumbnail thumbnail) {
          QMetaObject::invokeMethod(
              this, [this, path, thumbnail = std::move(thumbnail)] { takeThumbnail(path, thumbnail); },
              Qt::QueuedConnection);
      }) {
    setObjectName(names.name);
    setAccessibleName(names.title);
    lister_.setMaxThreadCount(1);
    fetch_.setSingleShot(true);
    fetch_.setInterval(0);
    connect(&fetch_, &QTimer::timeout, this, [this] {
        const std::size_t count = wanted_.size();
        const bool isFine = devicePixelRatioF() > 1.0;
        loader_.want(std::exchange(wanted_, {}), count, isFine ? ThumbnailSize::large : ThumbnailSize::normal);
    });
    layOut(names);
    show();
}

TapeDeckView::~TapeDeckView() {
    news_.reset();
    lister_.clear();
    lister_.waitForDone();
}

void TapeDeckView::layOut(const DeckNames& names) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 4, 6, 4);
    grid->setVerticalSpacing(1);
    auto* title = new QLabel(names.title, this);
    grid->addWidget(title, 0, 0, 1, TapeDeckFileSelector::kSlots);
    for (int slot = 0; slot < TapeDeckFileSelector::kSlots; ++slot) {
        const auto at = static_cast<std::size_t>(slot);
        places_[at] = makePlace(names, slot + 1);
        captions_[at] = new QLabel(this);
        captions_[at]->setObjectName(QString("%1Text%2").arg(names.name).arg(slot + 1));
        captions_[at]->setAlignment(Qt::AlignCenter);
        grid->addWidget(places_[at], 1, slot);
        grid->addWidget(captions_[at], 2, slot);
        grid->addWidget(makeTapeButton(names, slot + 1), 3, slot);
    }
    empty_ = new QLabel(names.emptyText, this);
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    empty_->setAttribute(Qt::WA_TransparentForMouseEvents);
    grid->addWidget(empty_, 1, 0, 1, TapeDeckFileSelector::kSlots);
}

QToolButton* TapeDeckView::makePlace(const DeckNames& names, int slot) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString("%1Image%2").arg(names.name).arg(slot));
    button->setProperty("handler", names.select);
    button->setProperty("key", QString::number(slot));
    button->setIconSize(kPicture);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, [this, slot] {
        deck_.imageSelected(slot);
        if (const std::string path = deck_.getSelectedImageName(); !path.empty()) emit chosen(textOfName(path));
    });
    return button;
}

QToolButton* TapeDeckView::makeTapeButton(const DeckNames& names, int button) {
    const QString words[] = {tr("To the first"), tr("Back five"), tr("Next"), tr("On five"), tr("To the last")};
    auto* made = new QToolButton(this);
    made->setObjectName(QString("%1Tape%2").arg(names.name).arg(button));
    made->setProperty("handler", names.push);
    made->setProperty("key", QString::number(button));
    made->setIcon(tapeIcon(button, palette()));
    made->setIconSize({24, 24});
    made->setToolTip(words[button - 1]);
    made->setAccessibleName(tr("%1: %2").arg(names.title, words[button - 1]));
    made->setFocusPolicy(Qt::StrongFocus);
    made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(made, &QToolButton::clicked, this, [this, button] { deck_.tapeDeckButtonPushed(button); });
    return made;
}

void TapeDeckView::updateFolder(const std::string& folder) {
    if (folder == deck_.folder()) return;
    deck_.updateFolder(folder);
    deck_.updateImagesInFolder({});
    deck_.updateFolder(folder);  // the first names are looked at, however many they are
    toldProblem_.clear();
    if (follows_) watch();
}

void TapeDeckView::setFollowing(bool follows) {
    if (std::exchange(follows_, follows) == follows) return;
    follows ? watch() : news_.reset();
}

void TapeDeckView::watch() {
    news_.reset();
    if (deck_.folder().empty()) return;
    news_ = std::make_shared<NewPortraits>(deck_.folder(), [this] {
        QMetaObject::invokeMethod(
            this, [this] { look(); }, Qt::QueuedConnection);
    });
    if (!deck_.oOrderedFiles().empty()) look();
}

/// The folder may be far away, so it is listed beside the main thread. What is shown stays while it is written anew.
void TapeDeckView::look() {
    if (!news_) return;
    if (lister_.activeThreadCount() > 0) {
        looksAgain_ = true;
        return;
    }
    looksAgain_ = false;
    const auto& shown = deck_.oOrderedFiles();
    lister_.start([this, folder = deck_.folder(), news = news_, known = std::set(shown.begin(), shown.end())] {
        std::string problem;
        std::vector<std::string> names = namesInFolder(folder, photoExtensions(), &problem);
        sortAsPeopleDo(names);
        std::erase_if(names, [&](const std::string& name) {
            return !known.contains(name) && !news->isWhole(folder + '/' + name);
        });
        QMetaObject::invokeMethod(
            this, [this, folder, names = std::move(names), problem] { takeNames(folder, names, problem); },
            Qt::QueuedConnection);
    });
}

void TapeDeckView::takeNames(const std::string& folder, const std::vector<std::string>& names,
                             const std::string& problem) {
    if (folder != deck_.folder()) return look();
    if (std::exchange(toldProblem_, problem) != problem && !problem.empty())
        emit failed(tr("The folder cannot be read."), QString::fromStdString(problem));
    deck_.updateImagesInFolder(names);
    emit listed();
    if (looksAgain_) look();
}

DeckPicture TapeDeckView::pictureOf(const std::string& path) {
    if (const auto known = pictures_.find(path); known != pictures_.end()) {
        if (known->second.state == DeckPicture::State::broken) {
            pictures_.erase(known);  // asked for once more with the next look
            wanted_.push_back(path);
            fetch_.start();
            return {};
        }
        return known->second;
    }
    if (pictures_.size() > kMostKept) pictures_.clear();
    wanted_.push_back(path);
    fetch_.start();
    return {DeckPicture::State::coming, {}};
}

void TapeDeckView::takeThumbnail(const std::string& path, const Thumbnail& thumbnail) {
    DeckPicture picture{DeckPicture::State::there, thumbnail.pixels};
    if (thumbnail.pixels.isNull()) {
        if (mayStillBeCopied(path)) {
            QTimer::singleShot(500, this, [this] { look(); });
            picture.state = DeckPicture::State::broken;
        } else {
            picture.pixels = brokenPicture();
        }
    }
    pictures_[path] = std::move(picture);
    deck_.picturesCame();
}

void TapeDeckView::show() {
    const auto& shown = deck_.shown();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const DeckSlot& place = shown[i];
        QPixmap pixels = QPixmap::fromImage(place.picture);
        places_[i]->setIcon(pixels.isNull() ? QIcon() : QIcon(pixels));
        places_[i]->setChecked(place.isSelected);
        places_[i]->setEnabled(!place.path.empty());
        const QString name = textOfName(place.path).section('/', -1);
        const QString words = place.path.empty() ? tr("%1, empty place %2").arg(accessibleName()).arg(i + 1)
                              : place.isServed   ? tr("%1, served").arg(name)
                                                 : name;
        places_[i]->setToolTip(words);
        places_[i]->setAccessibleName(words);
        captions_[i]->setText(QString::fromStdString(place.caption));
        captions_[i]->setEnabled(!place.isServed);  // grey
    }
    empty_->setVisible(deck_.folder().empty());
}

}  // namespace tavrin
