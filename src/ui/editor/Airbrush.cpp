#include "ui/editor/Airbrush.h"

#include <utility>

#include <QFileDialog>
#include <QKeyEvent>
#include <QSaveFile>

#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "ui/editor/BrushCursor.h"
#include "ui/editor/EditMessages.h"
#include "ui/views/PictureView.h"

namespace tavrin {

Airbrush::Airbrush(Binder& binder, CombineThread& loop, WindowBridge& bridge, PictureView* view)
    : QObject(view),
      info_(binder.editor().info()),
      view_(view),
      door_(info_, loop, Places::current().tempFilesFolder(),
            [this](const EditorFace& face) {
                QMetaObject::invokeMethod(
                    this, [this, face] { take(face); }, Qt::QueuedConnection);
            }),
      page_(new EditorPage(door_, binder)),
      cursor_(new BrushCursor(view)),
      tool_(new BrushTool(door_, view, cursor_)) {
    bridge.setEditor(&door_);
    connect(page_, &EditorPage::penChosen, this,
            [this](int what) { tool_->setPen(static_cast<BrushTool::Pen>(what)); });
    connect(page_, &EditorPage::keyOffered, this,
            [this](QKeyEvent* event, bool* wanted) { *wanted = tool_->takesKey(*event, false); });
    connect(page_, &EditorPage::keyPressed, this, [this](QKeyEvent* event) { tool_->key(*event, false); });
}

/// A tab that is turned to already changes nothing, so that no step of undo goes with a click too many.
void Airbrush::turnTo(bool airbrush) {
    if (std::exchange(turnedTo_, airbrush) == airbrush) return;
    if (!airbrush) return door_.leave();
    if (finished_) door_.enter();
}

void Airbrush::setFinished(bool finished) {
    finished_ = finished;
    if (!finished) return;
    turnedTo_ ? door_.enter() : door_.look();
}

void Airbrush::take(const EditorFace& face) {
    const EditorFace before = std::exchange(face_, face);
    page_->UpdateEditorUI(face);
    tool_->show(face);
    if (!face.problem.isEmpty()) emit failed(tr("Airbrush"), translatedEditMessage(face.problem));
    if (before.open != face.open) {
        view_->setDrawing(face.open);
        emit modeChanged(face.open);
    }
    if (before.step != face.step || before.replaying != face.replaying) {
        emit edited();
        if (face.open && !face.replaying && face.recorded > 0) keepStrokes();
    }
    emit changed();
    if (face.lost == 0) lostTold_ = 0;
    if (finished_ && !face.replaying && std::exchange(lostTold_, face.lost) != face.lost && face.lost > 0)
        emit strokesLost(face.lost);
}

void Airbrush::replay() {
    door_.replay();
}

void Airbrush::keepStrokes() {
    door_.askForFile([this](const EditFile& file) {
        QMetaObject::invokeMethod(
            this, [this, file] { emit strokesChanged(file); }, Qt::QueuedConnection);
    });
}

void Airbrush::offer(const std::string& edits) {
    ReadEdits read = parseEdits("", edits);
    if (read.problem.isEmpty()) door_.offer(std::move(read.file));
}

QString Airbrush::suggestedFile() const {
    return textOfName(info_.pForegroundBitmapInfo->sSourceImageFullPath) + ".edits";
}

void Airbrush::askForFileToSave() {
    const QString path =
        QFileDialog::getSaveFileName(page_->window(), tr("Save Edits"), suggestedFile(), tr("Edits (*.edits)"));
    if (!path.isEmpty()) saveEdits(path);
}

void Airbrush::askForFileToLoad() {
    const QString path = QFileDialog::getOpenFileName(page_->window(), tr("Load Edits"), suggestedFile(),
                                                      tr("Edits (*.edits);;All files (*)"));
    if (!path.isEmpty()) loadEdits(path);
}

void Airbrush::saveEdits(const QString& path) {
    door_.askForFile([this, path](const EditFile& file) {
        QMetaObject::invokeMethod(
            this, [this, path, file] { write(path, file); }, Qt::QueuedConnection);
    });
}

void Airbrush::write(const QString& path, const EditFile& edits) {
    QSaveFile file(path);
    const std::string text = editText(edits);
    const bool written =
        file.open(QIODevice::WriteOnly) &&
        file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size()) &&
        file.commit();
    if (!written) return emit failed(tr("The edits cannot be saved."), path + ": " + file.errorString() + ".");
    if (edits.dropped > 0)
        return emit failed(
            tr("Not all edits are in the file."),
            tr("%1 holds %2 items, and there were %3 more.").arg(path).arg(kMostEditItems).arg(edits.dropped));
    emit told(tr("Saved %1").arg(path));
}

void Airbrush::loadEdits(const QString& path) {
    ReadEdits read = readEditFile(nameOfText(path));
    if (!read.problem.isEmpty())
        return emit failed(tr("The edits cannot be loaded."), translatedEditMessage(read.problem));
    const PassGeometry size = info_.geometry(Resolution::full);
    QStringList warnings;
    if (read.file.width != size.width || read.file.height != size.height)
        warnings.append(tr("The edits were made for a picture of %1 x %2 pixels, and this one has %3 x %4: their "
                           "places go with its height.")
                            .arg(read.file.width)
                            .arg(read.file.height)
                            .arg(size.width)
                            .arg(size.height));
    if (read.file.dropped > 0)
        warnings.append(
            tr("The file has more than %1 items; %2 were left out.").arg(kMostEditItems).arg(read.file.dropped));
    if (read.file.unknown > 0)
        warnings.append(tr("Items of kinds that are not known here were left out: %1.").arg(read.file.unknown));
    door_.play(std::move(read.file));
    if (!warnings.isEmpty()) emit failed(tr("The edits were loaded."), path + ": " + warnings.join('\n'));
}

std::vector<Command> editorCommands(Airbrush& airbrush) {
    const auto rests = [&airbrush] { return airbrush.isOpen() && !airbrush.isReplaying(); };
    return {
        {"ReplayEdits",
         "|&Picture",
         Airbrush::tr("Replay &Edits"),
         Airbrush::tr("Does again what was done with the airbrush, on the picture that stands"),
         "",
         {},
         [&airbrush, rests] { return rests() && airbrush.face().replayable > 0; },
         [&airbrush](bool) { airbrush.replay(); }},
        {"SaveEdits",
         "&Picture",
         Airbrush::tr("Sa&ve Edits..."),
         Airbrush::tr("Writes all strokes into a file, to be played on this or another picture"),
         "",
         {},
         [&airbrush, rests] { return rests() && airbrush.face().recorded + airbrush.face().replayable > 0; },
         [&airbrush](bool) { airbrush.askForFileToSave(); }},
        {"LoadEdits",
         "&Picture",
         Airbrush::tr("&Load Edits..."),
         Airbrush::tr("Plays the strokes of a file on this picture"),
         "",
         {},
         rests,
         [&airbrush](bool) { airbrush.askForFileToLoad(); }},
    };
}

}  // namespace tavrin
