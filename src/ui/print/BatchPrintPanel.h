#pragma once

#include <QWidget>

#include "batch/BatchPrint.h"
#include "ui/print/PrintDesk.h"
#include "ui/print/TemplatePanel.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace tavrin {

/// Carries what batch print says over to the main thread.
class BatchPrintBridge : public QObject, public BatchPrintInterface {
    Q_OBJECT

  public:
    using QObject::QObject;

    void showBatchPrintCounts(const std::string& files, const std::string& processed) override;
    void showBatchPrintState(BatchPrintState state, const std::string& detail) override;
    void enableBatchPrint(bool start, bool stop) override { emit enabled(start, stop); }
    void batchPrintFailed(const std::string& line) override { emit failed(QString::fromStdString(line)); }
    void batchPrintSheetsChanged() override { emit sheetsChanged(); }
    void showBatchPrintSettings() override { emit settingsShown(); }
    std::optional<std::string> FindFolder() override { return findFolder ? findFolder() : std::nullopt; }

    /// Asks for a folder.
    std::function<std::optional<std::string>()> findFolder;

  signals:
    void counted(const QString& files, const QString& processed);
    void stateShown(int state, const QString& detail);
    void enabled(bool start, bool stop);
    void failed(const QString& line);
    void sheetsChanged();
    void settingsShown();
};

/// Printing a whole folder: its photos, the printer, the page, and the run.
class BatchPrintPanel : public QWidget {
    Q_OBJECT

  public:
    /// @param picture asks for the combined picture, for the preview of the page; it may be null
    BatchPrintPanel(SystemInfo& info, PrintDesk& desk, std::function<QImage()> picture, QWidget* parent = nullptr);

    BatchPrint& engine() { return engine_; }
    /// The list of pages may be another one.
    void refresh();

  signals:
    /// The settings are to be saved.
    void changed();
    void told(const QString& line);
    void failed(const QString& line, const QString& details);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QToolButton* addButton(const char* handler, const QString& text, const QString& toolTip,
                           void (BatchPrintPanel::*clicked)());
    QWidget* makeFolderRow();
    QWidget* makePageRow();
    QWidget* makeRunRow();
    void connectEngine();
    void takePrinters(const PrinterList& list);
    void showSettings();
    void showState(BatchPrintState state, const QString& detail);
    void showBatchPrinterTemplate();
    void chooseBatchPrintFolder() { engine_.chooseBatchPrintFolder(); }
    void clickedButtonStartBatchPrint();
    void clickedButtonStopBatchPrint();
    void clickedButtonClearHistory() { engine_.clickedButtonClearHistory(); }

    SystemInfo& info_;
    PrintDesk& desk_;
    BatchPrintBridge bridge_;
    TemplatePanel* template_;
    QLineEdit *folder_, *page_;
    QComboBox* printer_;
    QLabel *printerState_, *files_, *processed_, *status_;
    QCheckBox* watch_;
    QToolButton *start_ = nullptr, *stop_ = nullptr;
    BatchPrint engine_;  // goes first: its thread uses the bridge
};

}  // namespace tavrin
