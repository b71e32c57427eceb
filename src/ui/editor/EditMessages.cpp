#include "ui/editor/EditMessages.h"

#include <QCoreApplication>

namespace tavrin {

/// All places at once: a part may have a % of its own.
QString translatedEditMessage(const EditMessage& message) {
    if (message.what == EditSays::verbatim) return QString::fromStdString(message.text);
    const char* english = wordsOf(message.what);
    const QString words = *english == '\0' ? QString() : QCoreApplication::translate("Edits", english);
    QString line;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const int place = words[i] == '%' && i + 1 < words.size() ? words[i + 1].digitValue() : 0;
        if (place < 1 || place > static_cast<int>(message.parts.size())) {
            line.append(words[i]);
        } else {
            line.append(translatedEditMessage(message.parts[static_cast<std::size_t>(place) - 1]));
            ++i;
        }
    }
    return line;
}

}  // namespace tavrin
