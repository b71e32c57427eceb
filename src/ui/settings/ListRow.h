#pragma once

#include <functional>
#include <vector>

#include <QWidget>

class QComboBox;

namespace tavrin {

/// One of a few values that a list offers. Texts are translated.
struct ListSetting {
    struct Entry {
        QString value, text;
    };
    const char* control;  ///< name of the list
    QString label, toolTip;
    std::vector<Entry> entries;
    std::function<QString()> present;                  ///< the value in force
    std::function<void(const QString& value)> choose;  ///< keeps another one
    QString said = {};                                 ///< to whom chose; "" for nothing
};

/// A name and a list to choose from.
class ListRow : public QWidget {
    Q_OBJECT

  public:
    explicit ListRow(ListSetting setting, QWidget* parent = nullptr);

    /// Shows the value in force; one that the list does not have shows none.
    void refresh();

  signals:
    /// One plain sentence for the person at the list.
    void told(const QString& line);

  private:
    const ListSetting setting_;
    QComboBox* list_;
};

}  // namespace tavrin
