#pragma once

#include "kit/Guida.h"
#include "shell/host/AnteprimaImmagine.h"

#include <QTest>
#include <gtest/gtest.h>

namespace zuvora {

// Clicks a button and gives what the message form said, both lines; `risposta` is the button that answers.
inline QString premi(QWidget &form, const char *bottone, int risposta = 0) {
    QString righe;
    Guida guida;
    guida.messaggio(&righe, risposta);
    clicca(form, bottone);
    return righe;
}

// The form's preview, once it has come to an end.
inline AnteprimaImmagine &anteprimaFinita(QWidget &form) {
    auto &anteprima = trova<AnteprimaImmagine>(form, "Image1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return anteprima.stato() != AnteprimaImmagine::Stato::InCorso; }, 30000));
    return anteprima;
}

} // namespace zuvora
