#pragma once

#include "kit/Guida.h"

#include <QAbstractButton>
#include <QTest>

namespace zuvora {

// Clicks a button where the user would.
inline void clic(QWidget &radice, const char *bottone) {
    QTest::mouseClick(&trova<QAbstractButton>(radice, bottone), Qt::LeftButton);
}

// Clicks a button and gives what the message form said, both lines; `risposta` is the button that answers.
inline QString premi(QWidget &radice, const char *bottone, int risposta = 0) {
    QString righe;
    Guida guida;
    guida.messaggio(&righe, risposta);
    clic(radice, bottone);
    return righe;
}

constexpr int Attesa_ms = 20000;

} // namespace zuvora
