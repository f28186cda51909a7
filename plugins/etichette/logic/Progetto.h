#pragma once

#include "etichette/logic/Etichetta.h"

#include <QUndoStack>
#include <memory>

namespace zuvora {

// What the designer edits: the ticket, what of it is selected, and the way back. Every change is one step of the undo
// stack; steps share the objects that they leave as they were.
class Progetto : public QObject {
    Q_OBJECT
public:
    enum class Bordo { Sinistra, CentroOrizzontale, Destra, Alto, CentroVerticale, Basso };
    using OggettoFermo = std::shared_ptr<const Oggetto>;

    explicit Progetto(const Etichetta &etichetta = {});

    Etichetta etichetta() const;
    const Carta &carta() const { return m_stato.carta; }
    const Stampa &stampa() const { return m_stato.stampa; }
    QPoint scostamento(const QString &stampante) const { return m_stato.scostamenti.value(stampante); }
    const QList<OggettoFermo> &oggetti() const { return m_stato.oggetti; } // from back to front
    QUndoStack &pila() { return m_pila; }

    // Indices of the selected objects, ascending.
    const QList<int> &scelti() const { return m_scelti; }
    void scegli(QList<int> indici);
    void scegliTutti();

    // Each is one step; locked objects stay where and as they are, and a change that changes nothing is no step.
    void aggiungi(const Oggetto &oggetto, const QString &testo); // and selects it
    void elimina();
    void duplica();
    void sposta(const QPoint &di, bool tasto = false); // consecutive steps by key are one
    void mettiAree(const QList<std::pair<int, QRect>> &aree, const QString &testo);
    template <class F> void cambia(const QString &testo, F &&azione); // F(Oggetto &) on each selected one
    void blocca(bool bloccati);
    void allinea(Bordo bordo);               // to the selection's edge, one alone to the paper's
    void distribuisci(Qt::Orientation asse); // equal gaps; three at least
    void inPrimoPiano();
    void inFondo();
    void setCarta(const Carta &carta);
    void setStampa(const Stampa &stampa);
    void setScostamento(const QString &stampante, const QPoint &scostamento);
    void sostituisci(const Etichetta &etichetta, const QString &testo);

    // The selected objects as a ticket's text, for the clipboard, and back; false when it is none.
    QByteArray copia() const;
    bool incolla(const QByteArray &testo);

Q_SIGNALS:
    void cambiato();
    void sceltiCambiati();

private:
    struct Stato {
        Carta carta;
        Stampa stampa;
        QMap<QString, QPoint> scostamenti;
        QJsonObject ignoti;
        QList<OggettoFermo> oggetti;
    };
    class Passo;

    static Stato statoDi(const Etichetta &etichetta);
    void fai(Stato nuovo, const QString &testo, QList<int> scelti, int fusione = -1);
    void fai(Stato nuovo, const QString &testo) { fai(std::move(nuovo), testo, m_scelti); }
    void metti(const Stato &stato, const QList<int> &scelti);
    bool mobile(int indice) const { return !m_stato.oggetti[indice]->bloccato; }
    void riordina(bool davanti);

    Stato m_stato;
    QList<int> m_scelti;
    QUndoStack m_pila;
};

template <class F> void Progetto::cambia(const QString &testo, F &&azione) {
    Stato nuovo = m_stato;
    bool diverso = false;
    for (const int i : m_scelti) {
        if (!mobile(i))
            continue;
        Oggetto o = *nuovo.oggetti[i];
        azione(o);
        if (o == *nuovo.oggetti[i])
            continue;
        nuovo.oggetti[i] = std::make_shared<const Oggetto>(std::move(o));
        diverso = true;
    }
    if (diverso)
        fai(std::move(nuovo), testo);
}

} // namespace zuvora
