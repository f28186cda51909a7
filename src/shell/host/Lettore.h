#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <chrono>
#include <functional>
#include <memory>

class QWidget;

namespace zuvora {

enum class StatoLettore {
    Vuoto,    // nothing is open
    Apertura, // the file is being read, the station connected
    InCorso,
    InPausa,
    Finito, // played to its end; stays open
    Guasto, // guasto() and motivo() say why
};

enum class GuastoLettore {
    Nessuno,
    FileMancante, // nothing stands there
    Illeggibile,  // no film or sound that a decoder knows
    NonRaggiunto, // no such host, refused, an error of the server
    Scaduto,      // no answer in time
    PaginaWeb,    // the address answers with a page, not with sound
    SenzaUscita,  // a sound, on a machine that has no output for it
    Interrotto,   // failed while it played
};

// Plays a film, a sound file or a station of the network. It comes from a component that is loaded at first use.
// No call waits: files and servers are asked on a thread of the player's own, so even one that hangs can be let go.
class Lettore {
public:
    using AlCambio = std::function<void()>;
    using Tempo = std::chrono::milliseconds;

    virtual ~Lettore() = default; // falls silent at once
    // Where the picture goes, black without one; lies in the parent that the player was made for, null without a
    // parent.
    virtual QWidget *widget() = 0;

    // What was open before is let go. Plays as soon as it is open; the outcome comes through setAlCambio.
    virtual void apriFile(const QString &percorso) = 0; // native path
    // http and https; a list of stations (m3u, pls) is followed to its first entry. Has a time limit.
    virtual void apriFlusso(const QUrl &indirizzo) = 0;
    virtual void chiudi() = 0;   // back to Vuoto
    virtual void riprendi() = 0; // after a pause; from the beginning after the end
    virtual void pausa() = 0;
    virtual void setPosizione(Tempo posizione) = 0; // nothing happens to a station
    virtual void setVolume(int percento) = 0;       // 0 to 100; holds for what is opened later too

    virtual StatoLettore stato() const = 0;
    virtual GuastoLettore guasto() const = 0;
    virtual QString motivo() const = 0; // an Italian sentence; empty unless the state is Guasto
    virtual Tempo posizione() const = 0;
    virtual Tempo durata() const = 0; // 0 while it isn't known, and for a station
    virtual int volume() const = 0;
    virtual bool haFilm() const = 0; // what is open has a picture
    // The machine has an output for sound. Known once something is open; a film without one plays silently.
    virtual bool haUscita() const = 0;
    // Called after each change of what the questions above answer. It may open something else or end the player.
    virtual void setAlCambio(AlCambio azione) = 0;
};

// The component's root object.
class FabbricaLettore {
public:
    virtual ~FabbricaLettore() = default;
    virtual std::unique_ptr<Lettore> crea(QWidget *padre) = 0; // null where no decoder is installed
};

} // namespace zuvora

Q_DECLARE_INTERFACE(zuvora::FabbricaLettore, "zuvora.FabbricaLettore/1")
