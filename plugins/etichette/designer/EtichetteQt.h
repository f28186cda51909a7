#pragma once

#include "etichette/designer/Domande.h"
#include "etichette/logic/Valori.h"
#include "shell/host/Etichette.h"

namespace zuvora {

// The ticket designer behind its three operations.
class EtichetteQt : public Etichette {
public:
    explicit EtichetteQt(Domande &domande) : m_domande(domande) {}

    void LlDefineVariableStart() override;
    int LlDefineVariableExt(const QString &nome, const QString &contenuto, TipoEtichetta tipo) override;
    int LlDefineLayout(QWidget *finestra, const QString &titolo, int tipoProgetto, const QString &file) override;

private:
    int disegna(QWidget *finestra, const QString &titolo, const QString &file);

    Domande &m_domande;
    QList<Variabile> m_variabili;
};

} // namespace zuvora
