#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include "delivery/print/PrintMe.h"
#include "delivery/print/PrintRunner.h"

namespace tavrin {

/// Printing off the main thread: sheets are made and the printing system is spoken to on a thread of its own, in
/// order; what comes of it arrives as signals. While sheets are at printers these are asked about them now and then.
class PrintDesk : public QObject {
    Q_OBJECT

  public:
    using MakeService = std::function<std::unique_ptr<PrintService>()>;

    explicit PrintDesk(QObject* parent = nullptr);
    /// Waits a little for a sheet that is being sent; what is left is in the queue.
    ~PrintDesk() override;

    /// Another printing system than the machine's, for what is asked from now on.
    void setService(MakeService make);
    /// For work beside the desk's, which talks to printers on a thread of its own.
    const MakeService& makeService() const { return make_; }

    void askPrinters();
    /// @param printer "" for none: the usual papers
    void askPapers(const QString& printer);
    /// Puts sheets into the queue and sends them.
    void print(const PrintOrder& order, const SheetPicture& picture);
    void savePdf(const SheetPlan& plan, const SheetPicture& picture, const QString& path);
    void sendAgain(const std::string& id);
    void discard(const std::string& id);
    /// Asks what became of the sheets that are on their way.
    void followUp();
    const std::vector<QueuedSheet>& sheets() const { return sheets_; }

  signals:
    void printersKnown(const tavrin::PrinterList& printers);
    void papersKnown(const QString& printer, const tavrin::PrinterPapers& papers);
    void sheetsChanged();
    void told(const QString& line);
    void failed(const QString& line, const QString& details);

  private:
    /// What the thread works with.
    struct Tools {
        std::unique_ptr<PrintService> service;
        PrintQueue queue;
    };
    using Told = std::function<void()>;

    void run(std::function<Told(Tools&)> work);
    void take(const std::vector<QueuedSheet>& sheets);
    void tellNews(const QueuedSheet& sheet, const QueuedSheet* before);

    MakeService make_;
    std::shared_ptr<Tools> tools_;
    std::unique_ptr<QThreadPool> pool_;
    QTimer timer_;
    std::vector<QueuedSheet> sheets_;
};

}  // namespace tavrin
