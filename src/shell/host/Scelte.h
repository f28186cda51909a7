#pragma once

#include "shell/host/Controllo.h"
#include "shell/host/Schiera.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>

namespace zuvora {

class RadioButton : public Controllo<QRadioButton>, public ConDidascalia {
    Q_OBJECT
public:
    RadioButton(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    QFont m_base;
};

// The radio buttons of one control array: one is on, or none. Arrays that share a container don't touch one another.
// Tab enters at the chosen button, the arrow keys choose.
class GruppoRadio : public QObject {
    Q_OBJECT
public:
    // The array must outlive the group.
    explicit GruppoRadio(const Schiera<RadioButton> &schiera);
    int scelto() const;         // index of the array, -1 while none is on
    void setScelto(int indice); // -1, or an index that the array doesn't have, turns all off; signals nothing

Q_SIGNALS:
    void cambiato(int indice); // the user pressed this button

private:
    void fermataDelTab(); // at the button that is on; while none is, at the first

    const Schiera<RadioButton> &m_schiera;
    QButtonGroup m_gruppo;
};

class CheckBox : public Controllo<QCheckBox>, public ConDidascalia {
    Q_OBJECT
public:
    CheckBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto);
    QString didascaliaMostrata() const override { return text(); }
    QSize spazioDidascalia() const override;

protected:
    void resizeEvent(QResizeEvent *e) override;

private:
    QFont m_base;
};

// A list that opens. The wheel changes nothing unless the box has the focus.
class ComboBox : public Controllo<QComboBox> {
    Q_OBJECT
public:
    ComboBox(QWidget *padre, const char *nome, const Posto &posto);
    void AddItem(const QString &testo) { addItem(testo); }
    void Clear() { clear(); }
    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); } // -1 without a choice
    void setListIndex(int indice) { setCurrentIndex(indice); }
    QString List(int indice) const { return itemText(indice); }

Q_SIGNALS:
    void cambiato(int indice); // the user chose

protected:
    void wheelEvent(QWheelEvent *e) override;
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

} // namespace zuvora
