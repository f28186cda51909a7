#pragma once

#include "etichette/logic/Valori.h"
#include "shell/host/Etichette.h"

namespace zuvora {

// The ticket designer behind its three operations.
class EtichetteQt : public Etichette {
public:
    explicit EtichetteQt(Dialoghi &dialoghi) : m_dialoghi(dialoghi) {}

    void LlDefineVariableStart() override;
    int LlDefineVariableExt(const QString &nome, const QString &contenuto, TipoEtichetta tipo) override;
    int LlDefineLayout(QWidget *finestra, const QString &titolo, int tipoProgetto, const QString &file) override;

private:
    bool conferma(QWidget *finestra, const QString &testo, int sicuro);
    int disegna(QWidget *finestra, const QString &titolo, const QString &file);

    Dialoghi &m_dialoghi;
    QList<Variabile> m_variabili;
};

} // namespace zuvora
