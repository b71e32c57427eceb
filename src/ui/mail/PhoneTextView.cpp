#include "ui/mail/PhoneTextView.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "delivery/mail/DeliveryConf.h"
#include "delivery/mail/EventMail.h"
#include "ui/bind/WordButton.h"

namespace tavrin {

namespace {

/// What stands on a carrier's button: their names are the same in every language.
constexpr std::pair<const char*, const char*> kNames[] = {{"textMessageVerizonClicked", "Verizon"},
                                                          {"textMessageSprintClicked", "Sprint"},
                                                          {"textMessageAttClicked", "AT&&T"},
                                                          {"textMessageTMobleClicked", "T-Mobile"},
                                                          {"texrMessageUSCellularClicked", "US Cellular"}};

QString nameOf(const Carrier& carrier) {
    for (const auto& [operation, name] : kNames)
        if (std::string_view(operation) == carrier.operation) return QString::fromLatin1(name);
    return {};
}

}  // namespace

PhoneTextView::PhoneTextView(SystemInfo& info, QWidget* parent) : QDialog(parent), info_(info) {
    setObjectName("MyPhoneTextView");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Text Message"));
    auto* layout = new QVBoxLayout(this);
    const QString number = QString::fromStdString(info.sEventEmail);
    layout->addWidget(new QLabel(tr("Which carrier has the number %1?").arg(number), this));
    for (std::size_t i = 0; i < carriers().size(); ++i) {
        const Carrier& carrier = carriers()[i];
        const QString toolTip = carrier.sends ? tr("Sends the picture as a text message")
                                              : tr("No way to this carrier yet: nothing is sent");
        QToolButton* button = makeButton(carrier.operation, carrier.operation, nameOf(carrier), toolTip);
        connect(button, &QToolButton::clicked, this, [this, i] { choose(i); });
        layout->addWidget(button);
    }
    QToolButton* cancel =
        makeButton("textMessageCancelClicked", "textMessageCancelClicked", tr("Cancel"), tr("Sends nothing"));
    connect(cancel, &QToolButton::clicked, this, &QDialog::reject);
    layout->addWidget(cancel);
}

void PhoneTextView::choose(std::size_t carrier) {
    const bool sends = chooseCarrier(info_, carriers()[carrier], readDeliveryConf());
    hide();
    if (sends) emit chosen(QString::fromStdString(info_.sEventEmail));
    close();
}

}  // namespace tavrin
