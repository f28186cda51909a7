#pragma once

#include "shell/host/Controllo.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <functional>

namespace zuvora {

// A text on a form. Long texts wrap inside their place.
class Label : public Controllo<QLabel>, public ConDidascalia {
    Q_OBJECT
public:
    Label(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    void setCaption(const QString &testo);
    QString Caption() const { return m_caption; }
    void setFontBase(const QFont &font); // instead of the form's font

    QString didascaliaMostrata() const override { return m_caption; }
    QSize spazioDidascalia() const override;
    bool vaACapo() const override { return true; }

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    void adatta();
    QString m_caption;
    QFont m_base;
};

// A label that is clicked like a link.
class LabelLink : public Label {
    Q_OBJECT
public:
    using Label::Label;
    LabelLink(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);

Q_SIGNALS:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;
};

class Button : public Controllo<QPushButton>, public ConDidascalia {
    Q_OBJECT
public:
    Button(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    void setCaption(const QString &testo);
    QString Caption() const { return text(); }
    void allineaASinistra(); // for the menu: captions stand behind one another

    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;

private:
    void adatta();
    QFont m_base;
    bool m_sinistra = false;
};

class RadioButton : public Controllo<QRadioButton>, public ConDidascalia {
    Q_OBJECT
public:
    RadioButton(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;
};

class CheckBox : public Controllo<QCheckBox>, public ConDidascalia {
    Q_OBJECT
public:
    CheckBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;
};

class GroupBox : public Controllo<QGroupBox>, public ConDidascalia {
    Q_OBJECT
public:
    GroupBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    QString didascaliaMostrata() const override { return title(); }
    QSize spazioDidascalia() const override;

protected:
    // A thin frame with the title on its upper line. The style's own frame comes from a picture file, and reading that
    // loads every picture plugin of the platform into a program that has just started.
    void paintEvent(QPaintEvent *e) override;
};

// One line of text. Typed keys can be dropped by a test on the character; the paste of the menu can't.
class Edit : public Controllo<QLineEdit> {
    Q_OBJECT
public:
    Edit(QWidget *padre, const char *nome, const Posto &posto, const char *testo = "");
    void setTastiAmmessi(std::function<bool(QChar)> ammesso);
    void setAlFuoco(std::function<void()> azione); // runs when the box gets the focus

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;

private:
    std::function<bool(QChar)> m_ammesso;
    std::function<void()> m_alFuoco;
};

// The digits 0 to 9.
bool soloCifre(QChar c);

} // namespace zuvora
