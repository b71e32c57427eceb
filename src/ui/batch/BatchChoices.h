#pragma once

#include <functional>

#include <QWidget>

#include "batch/BatchEngine.h"

class QButtonGroup;
class QCheckBox;

namespace tavrin {

/// How a batch goes by its folders and names its pictures: type, names, watch, subfolders, list files.
class BatchChoices : public QWidget {
    Q_OBJECT

  public:
    BatchChoices(BatchEngine& engine, const QLXInfo& settings, QWidget* parent = nullptr);

    /// Shows what stands in the settings.
    void refresh();

  signals:
    void changed();

  private:
    QWidget* makeRadio(QButtonGroup* group, const char* name, const QString& label,
                       const std::vector<std::pair<QString, QString>>& choices);
    QCheckBox* makeBox(const char* name, const char* handler, const QString& text, const QString& toolTip);

    BatchEngine& engine_;
    const QLXInfo& settings_;
    QButtonGroup *type_, *style_;
    QCheckBox *watch_, *lowResolution_, *subfolders_, *list_;
};

}  // namespace tavrin
