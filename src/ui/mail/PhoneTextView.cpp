#include "ui/mail/PhoneTextView.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "delivery/mail/DeliveryConf.h"
#include "delivery/mail/EventMail.h"

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
    const auto addButton = [&](const QString& operation, const QString& text, const QString& toolTip) {
        auto* button = new QToolButton(this);
        button->setObjectName(operation);
        button->setProperty("handler", operation + ':');
        button->setText(text);
        button->setToolTip(toolTip);
        button->setAccessibleName(QString(text).replace("&&", "&"));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        layout->addWidget(button);
        return button;
    };
    for (std::size_t i = 0; i < carriers().size(); ++i) {
        const Carrier& carrier = carriers()[i];
        const QString toolTip = carrier.sends ? tr("Sends the picture as a text message")
                                              : tr("No way to this carrier yet: nothing is sent");
        connect(addButton(carrier.operation, nameOf(carrier), toolTip), &QToolButton::clicked, this,
                [this, i] { choose(i); });
    }
    QToolButton* cancel = addButton("textMessageCancelClicked", tr("Cancel"), tr("Sends nothing"));
    connect(cancel, &QToolButton::clicked, this, &QDialog::reject);
}

void PhoneTextView::choose(std::size_t carrier) {
    const bool sends = chooseCarrier(info_, carriers()[carrier], readDeliveryConf());
    hide();
    if (sends) emit chosen(QString::fromStdString(info_.sEventEmail));
    close();
}

}  // namespace tavrin
