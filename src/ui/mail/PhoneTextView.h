#pragma once

#include <QDialog>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Asks for the carrier of a telephone number, which is in `sEventEmail` by then. A carrier that sends makes a mail
/// address of it; the others close the question and nothing is sent.
class PhoneTextView : public QDialog {
    Q_OBJECT

  public:
    PhoneTextView(SystemInfo& info, QWidget* parent);

  signals:
    /// The picture is to go to this address.
    void chosen(const QString& address);

  private:
    void choose(std::size_t carrier);

    SystemInfo& info_;
};

}  // namespace tavrin
