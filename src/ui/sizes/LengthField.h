#pragma once

#include <QLineEdit>

namespace tavrin {

/// A length that is typed and kept as it is typed, with a point or a comma. One beyond the range becomes the range's
/// end, and what is no number leaves the old one; both are told.
class LengthField : public QLineEdit {
    Q_OBJECT

  public:
    /// @param name for the person, and for those who do not see it
    LengthField(const char* objectName, const QString& name, QWidget* parent = nullptr);

    void setRange(double least, double most);
    void setLength(const QString& text);
    /// With a full stop.
    std::string length() const { return taken_.toStdString(); }

  signals:
    void lengthChanged();
    /// One plain sentence for the person at the field.
    void told(const QString& line);

  private:
    void take(const QString& typed, bool ended);
    QString ends() const;

    QString name_, taken_;
    double least_ = 0.0, most_ = 100.0;
};

}  // namespace tavrin
