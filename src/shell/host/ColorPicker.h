#pragma once

#include "shell/host/Controllo.h"

#include <QColor>
#include <QPushButton>
#include <optional>

namespace zuvora {

class Dialoghi;

// Colours of the data are whole numbers 0x00BBGGRR, red in the lowest byte.
QColor coloreDa(int bgr);
int bgrDa(const QColor &colore);

// A button that shows a colour and lets the user pick another.
class ColorPicker : public Controllo<QPushButton> {
    Q_OBJECT
public:
    ColorPicker(QWidget *padre, const char *nome, const Posto &posto, Dialoghi &dialoghi);
    int Colore() const { return m_colore; } // 0x00BBGGRR
    void setColore(int bgr);

Q_SIGNALS:
    void scelto(int bgr); // the user picked, not setColore

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    void scegli();
    Dialoghi &m_dialoghi;
    int m_colore = 0;
};

} // namespace zuvora
