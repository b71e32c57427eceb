#include "booth/JobNote.h"

#include <fstream>
#include <iterator>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/files/AtomicFile.h"
#include "core/files/NameText.h"

namespace tavrin {

std::string writeNote(const JobNote& note, const std::string& path) {
    QJsonArray sheets;
    for (const std::string& id : note.sheets)
        sheets.append(textOfName(id));
    const QJsonObject object{
        {"owner", textOfName(note.owner)}, {"mode", note.mode},         {"copies", note.copies},
        {"email", textOfName(note.email)}, {"sheets", sheets},          {"mail", textOfName(note.mail)},
        {"owesSheets", note.owesSheets},   {"owesMail", note.owesMail}, {"reason", textOfName(note.reason)}};
    const QByteArray bytes = QJsonDocument(object).toJson(QJsonDocument::Compact);
    AtomicFile file(path);
    file.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return file.commit() ? "" : path + " cannot be written: " + file.error() + ".";
}

bool readNote(const std::string& path, JobNote& note) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(bytes)).object();
    if (object.isEmpty()) return false;
    const auto text = [&object](const char* key) { return nameOfText(object[QLatin1String(key)].toString()); };
    note = {text("owner"), object["mode"].toInt(),        object["copies"].toInt(),    text("email"), {},
            text("mail"),  object["owesSheets"].toBool(), object["owesMail"].toBool(), text("reason")};
    for (const QJsonValue& id : object["sheets"].toArray())
        note.sheets.push_back(nameOfText(id.toString()));
    return true;
}

}  // namespace tavrin
