#pragma once

#include <span>

#include <QTimer>
#include <QWidget>

#include "ui/bind/Binder.h"

class QComboBox;
class QFontComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace tavrin {

/// A setting that is a word or a text. Texts are translated in the context "Panel".
struct WordSetting {
    const char* control;
    const Handler* handler;
    Owner owner;
    const char* setting;
    const char *label, *toolTip;
};

/// A control of such a setting beside its label. It shows the setting whenever settings are shown.
class WordRow : public QWidget {
    Q_OBJECT

  protected:
    WordRow(const WordSetting& setting, Binder& binder, QWidget* parent);

    /// Takes a new value as a step of its own, or as part of the step that is open.
    void take(const QString& value);
    /// Lays the control out beside its label and names it.
    void addControl(QWidget* control);
    virtual void showWord(const QString& word) = 0;
    /// Shows the setting now.
    void refresh();

  private:
    std::string name() const;

    const WordSetting setting_;
    Binder& binder_;
    QWidget* control_ = nullptr;
};

/// A text that is typed. What is typed in one go is one step, and the picture follows.
class TypedRow : public WordRow {
    Q_OBJECT

  protected:
    TypedRow(const WordSetting& setting, Binder& binder, QWidget* parent);
    void typed(const QString& text);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void endTyping();

  private:
    Binder& binder_;
    QTimer pause_;
    bool typing_ = false;
};

class LineRow : public TypedRow {
  public:
    LineRow(const WordSetting& setting, Binder& binder, QWidget* parent = nullptr);

  protected:
    void showWord(const QString& word) override;

  private:
    QLineEdit* line_;
};

/// A text of several lines.
class TextRow : public TypedRow {
  public:
    TextRow(const WordSetting& setting, Binder& binder, QWidget* parent = nullptr);
    /// Puts a text where the cursor stands.
    void insert(const QString& text);

  protected:
    void showWord(const QString& word) override;

  private:
    QPlainTextEdit* edit_;
};

/// One of a few words.
class PickRow : public WordRow {
  public:
    struct Word {
        const char *value, *label;
    };
    PickRow(const WordSetting& setting, std::span<const Word> words, Binder& binder, QWidget* parent = nullptr);

  protected:
    void showWord(const QString& word) override;

  private:
    QComboBox* box_;
};

/// A font of the system, each shown in its own face.
class FontRow : public WordRow {
  public:
    FontRow(const WordSetting& setting, Binder& binder, QWidget* parent = nullptr);

  protected:
    void showWord(const QString& word) override;

  private:
    QFontComboBox* box_;
};

}  // namespace tavrin
