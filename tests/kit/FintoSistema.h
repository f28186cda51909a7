#pragma once

#include "shell/logic/SistemaFile.h"

#include <QStringList>
#include <map>
#include <memory>
#include <semaphore>

namespace zuvora {

// A machine for the path service: its own tables and disks, one folder of which may hang.
class FintoSistema : public SistemaFile {
public:
    bool unita = false;
    QString macchina = QStringLiteral("SALA1");
    QList<Montaggio> tabella;
    QList<Condivisione> condivise;
    std::map<QString, Specie> albero; // every file and folder by its path
    QString muta;                     // what begins so is never answered, until risveglia

    // Lets the stuck threads go: to be called before the end of the test.
    void risveglia() { m_risposta.release(64); }

    bool conUnita() const override { return unita; }
    QString nomeMacchina() const override { return macchina; }
    QList<Montaggio> montaggi() const override { return tabella; }
    QList<Condivisione> condivisioni() const override { return condivise; }
    Specie specie(const QString &percorso) const override {
        attendi(percorso);
        const auto trovato = albero.find(percorso);
        return trovato == albero.end() ? Specie::Manca : trovato->second;
    }
    QStringList nomi(const QString &cartella) const override {
        attendi(cartella);
        const QString inizio = cartella.endsWith(u'/') ? cartella : cartella + u'/';
        QStringList elenco;
        for (const auto &[percorso, specie] : albero)
            if (percorso.startsWith(inizio) && percorso.size() > inizio.size() &&
                percorso.indexOf(u'/', inizio.size()) < 0)
                elenco += percorso.sliced(inizio.size());
        return elenco;
    }

private:
    void attendi(const QString &percorso) const {
        if (!muta.isEmpty() && percorso.startsWith(muta))
            m_risposta.acquire();
    }
    mutable std::counting_semaphore<1024> m_risposta{0};
};

} // namespace zuvora
