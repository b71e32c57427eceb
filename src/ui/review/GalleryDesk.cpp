#include "ui/review/GalleryDesk.h"

#include <utility>

#include <QProgressDialog>
#include <QTimer>

#include "batch/GalleryPresets.h"
#include "core/Log.h"
#include "core/files/NameText.h"

namespace tavrin {

GalleryDesk::GalleryDesk(Binder& binder, CombineThread& loop, QWidget* window)
    : QObject(window),
      binder_(binder),
      loop_(loop),
      window_(window),
      engine_(binder.editor().info(), &bridge_),
      page_(new PageWindow("MyGalleryPanel", tr("Gallery"),
                           {[this](const QString& name) { return mayGo(name); },
                            {},
                            {},
                            [this](const QString& text) { emit alerted(text, {}); }},
                           window)) {
    const auto queued = Qt::QueuedConnection;
    connect(
        &bridge_, &GalleryBridge::stepped, this,
        [this](int done, int all) {
            if (!progress_) return;
            progress_->setMaximum(all + 1);  // at its maximum the dialog would go, and the page is not there yet
            progress_->setValue(done);
        },
        queued);
    connect(&bridge_, &GalleryBridge::ended, this, &GalleryDesk::end, queued);
    connect(&bridge_, &GalleryBridge::pageWanted, this, &GalleryDesk::showGalleryViewer, queued);
    connect(page_, &PageWindow::told, this, &GalleryDesk::told);
}

void GalleryDesk::showAdjustGallery() {
    begin(&Galleries::showAdjustGallery);
}

void GalleryDesk::showGallery() {
    if (binder_.editor().info().oQLXInfo->sPickDirectory.load().empty())
        emit told(tr(
            "No folder of backgrounds is chosen, so the gallery is empty. The page \"Settings\" has that folder."));
    begin(&Galleries::showGallery);
}

/// A page that is there comes up as well by way of the loop, as soon as no pass is under work.
void GalleryDesk::begin(bool (Galleries::*make)(int)) {
    if (running_) return;
    running_ = true;
    emit runBegins();
    progress_ = new QProgressDialog(tr("The gallery is being made."), tr("Stop"), 0, 0, window_);
    progress_->setObjectName("galleryProgress");
    progress_->setWindowTitle(tr("Gallery"));
    progress_->setWindowModality(Qt::WindowModal);
    progress_->setMinimumDuration(0);
    progress_->setAutoReset(false);
    connect(progress_, &QProgressDialog::canceled, this, &GalleryDesk::leave);
    progress_->show();
    loop_.edit([this, make, number = engine_.ask()]() -> std::vector<ChangedRows> {
        if ((engine_.*make)(number) && !engine_.isOn()) bridge_.galleryEnded("");
        return {};
    });
}

void GalleryDesk::leave() {
    if (!running_) return;
    if (engine_.leave()) binder_.editor().info().StartUpdate();
    end({});
}

void GalleryDesk::end(const QString& problem) {
    if (!std::exchange(running_, false)) return;
    progress_->deleteLater();
    progress_->hide();
    progress_ = nullptr;
    emit runEnded();
    if (!problem.isEmpty()) emit failed(tr("The gallery cannot be made."), problem);
}

void GalleryDesk::showGalleryViewer() {
    const SystemInfo& info = binder_.editor().info();
    page_->showPageAnew(textOfName(info.sGalleryToViewPath));
}

void GalleryDesk::endShowGallery() {
    page_->hide();
}

/// The pages themselves may be read; what else is clicked is a picture's number. The window is used when the page has
/// had its answer.
bool GalleryDesk::mayGo(const QString& name) {
    logTrace("Gallery Link: " + name.toStdString());
    if (name == "Gallery.htm" || name == "AdjGallery.htm") return true;
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber && number >= 0) QTimer::singleShot(0, this, [this, number] { choose(number); });
    return false;  // there is no page of that name
}

void GalleryDesk::choose(int number) {
    if (running_) return;
    const QString page = textOfName(binder_.editor().info().sGalleryToViewPath);
    if (page.contains("AdjGallery.htm", Qt::CaseInsensitive)) {
        if (number >= kGalleryPresets) return;
        binder_.run(tr("Adjustment %1 of the gallery").arg(number + 1), [number](SettingEditor& editor) {
            editor.apply(galleryPresetSettings(),
                         [number](SystemInfo& info) { SelectAdjustGallerSettings(info, number); });
        });
    } else {
        const std::vector<std::string> backgrounds = engine_.backgrounds();
        if (static_cast<std::size_t>(number) >= backgrounds.size()) return;
        emit backgroundChosen(textOfName(backgrounds[static_cast<std::size_t>(number)]));
    }
    endShowGallery();
}

std::vector<Command> galleryCommands(GalleryDesk& desk, const std::function<bool()>& isFree) {
    return {{"showAdjustGallery",
             "|&Picture",
             GalleryDesk::tr("Gallery of Ad&justments..."),
             GalleryDesk::tr("Shows the portrait under twelve settings of the key; a click takes one of them"),
             "",
             {},
             isFree,
             [&desk](bool) { desk.showAdjustGallery(); }},
            {"showGallery",
             "&Picture",
             GalleryDesk::tr("Gallery of Back&grounds..."),
             GalleryDesk::tr("Shows the portrait over every background of the folder; a click takes one of them"),
             "",
             {},
             isFree,
             [&desk](bool) { desk.showGallery(); }}};
}

}  // namespace tavrin
