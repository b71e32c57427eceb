#pragma once

#include <functional>
#include <set>
#include <vector>

#include <QDialog>

#include "session/Looks.h"

class QTreeWidget;

namespace tavrin {

/// What a look will change, part by part, each with a box. Taken is what is ticked.
class LookDialog : public QDialog {
    Q_OBJECT

  public:
    /// @param nameOf the words of a setting; "" for one that has no control
    LookDialog(const QString& title, const std::vector<LookChange>& changes,
               const std::function<QString(const std::string& setting)>& nameOf, QWidget* parent);

    std::set<LookPart> parts() const;

  private:
    QTreeWidget* tree_;
};

}  // namespace tavrin
