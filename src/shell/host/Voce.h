#pragma once

#include <QString>
#include <QtPlugin>
#include <functional>
#include <memory>
#include <optional>

namespace zuvora {

enum class StatoVoce {
    Tace,
    Prepara, // the voice is being made ready
    Parla,
    Finito, // said to the end
    Guasto, // motivo() says why
};

enum class Timbro { Femminile, Maschile };

// Reads a text aloud, in Italian and in the background. No call waits for an engine or for the sound service.
class Voce {
public:
    using AlCambio = std::function<void()>;

    virtual ~Voce() = default; // falls silent at once
    // Cuts what is being said. Without a choice the voice is the engine's own.
    virtual void parla(const QString &testo, std::optional<Timbro> timbro) = 0;
    virtual void taci() = 0;
    virtual StatoVoce stato() const = 0;
    virtual QString motivo() const = 0; // an Italian sentence; empty unless the state is Guasto
    // Called after each change. It must not end the voice.
    virtual void setAlCambio(AlCambio azione) = 0;
};

// The component's root object.
class FabbricaVoce {
public:
    virtual ~FabbricaVoce() = default;
    virtual std::unique_ptr<Voce> crea() = 0;
};

} // namespace zuvora

Q_DECLARE_INTERFACE(zuvora::FabbricaVoce, "zuvora.FabbricaVoce/1")
