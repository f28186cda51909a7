#pragma once

#include "calling/logic/Rtf.h"
#include "shell/host/Controllo.h"

#include <QTextEdit>

namespace zuvora {

// Formatted text to read.
class TestoFormattato : public Controllo<QTextEdit> {
    Q_OBJECT
public:
    TestoFormattato(QWidget *padre, const char *nome, const Posto &posto);
    void mostra(const std::vector<ParagrafoRtf> &paragrafi);
    void mostraAvviso(const QString &testo);
};

} // namespace zuvora
