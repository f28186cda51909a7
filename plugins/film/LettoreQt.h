#pragma once

#include "film/Motore.h"

#include <QPointer>
#include <QTimer>

namespace zuvora {

// The player that the forms hold. Each file or station gets an engine on a thread of its own; one that hangs is left
// to itself, and a new one begins.
class LettoreQt : public QObject, public Lettore {
    Q_OBJECT
public:
    explicit LettoreQt(QWidget *padre);
    ~LettoreQt() override;

    QWidget *widget() override;
    void apriFile(const QString &percorso) override;
    void apriFlusso(const QUrl &indirizzo) override;
    void chiudi() override;
    void riprendi() override;
    void pausa() override;
    void setPosizione(Tempo posizione) override;
    void setVolume(int percento) override;

    StatoLettore stato() const override { return m_notizia.stato; }
    GuastoLettore guasto() const override { return m_notizia.guasto; }
    QString motivo() const override { return m_notizia.motivo; }
    Tempo posizione() const override { return Tempo(m_notizia.posizione); }
    Tempo durata() const override { return Tempo(m_notizia.durata); }
    int volume() const override { return m_volume; }
    bool haFilm() const override { return m_notizia.haFilm; }
    bool haUscita() const override { return m_notizia.haUscita; }
    void setAlCambio(AlCambio azione) override { m_alCambio = std::move(azione); }

private:
    template <class F> void aMotore(F &&azione);
    void avvia(std::chrono::milliseconds limite);
    void congeda(); // lets the engine go, whatever it is doing
    void ricevi(const Notizia &notizia);
    void scade();
    void annuncia();

    QPointer<Schermo> m_schermo;
    Motore *m_motore = nullptr; // belongs to its thread
    int m_quale = 0;            // number of the engine in use
    std::shared_ptr<Passaggio> m_passaggio;
    Notizia m_notizia;
    bool m_flusso = false;
    int m_volume = 100;
    QTimer m_limite; // for the opening, then for a station that has gone still
    AlCambio m_alCambio;
};

} // namespace zuvora
