#include "voce/Sintesi.h"

#include <espeak-ng/speak_lib.h>
#include <mutex>

namespace zuvora {
namespace {

constexpr qsizetype massimoPezzo = 400; // characters
constexpr int tratto = 200;             // milliseconds that the engine hands over at a time

std::mutex &turno() {
    static std::mutex chiave;
    return chiave;
}

int avvia() {
    return espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, tratto, nullptr, espeakINITIALIZE_DONT_EXIT);
}

const char *nomeVoce(std::optional<Timbro> timbro) {
    return timbro == Timbro::Femminile ? "it+f2" : "it";
}

int raccogli(short *campioni, int quanti, espeak_EVENT *eventi) {
    if (campioni != nullptr && eventi != nullptr)
        static_cast<QByteArray *>(eventi->user_data)
            ->append(reinterpret_cast<const char *>(campioni), qsizetype(quanti) * qsizetype(sizeof(short)));
    return 0;
}

bool fineFrase(QChar c) {
    return c == u'.' || c == u'!' || c == u'?' || c == u';' || c == u'\n';
}

// How much of the text goes into the next piece.
qsizetype primoPezzo(QStringView testo) {
    if (testo.size() <= massimoPezzo)
        return testo.size();
    qsizetype parola = 0;
    for (qsizetype i = massimoPezzo - 1; i > 0; --i) {
        if (fineFrase(testo[i]) && testo[i + 1].isSpace())
            return i + 1;
        if (parola == 0 && testo[i].isSpace())
            parola = i + 1;
    }
    return parola > 0 ? parola : massimoPezzo;
}

} // namespace

int frequenzaVoce() {
    const std::scoped_lock chiave(turno());
    static const int frequenza = avvia();
    return frequenza > 0 ? frequenza : 0;
}

QByteArray sintetizza(const QString &testo, std::optional<Timbro> timbro) {
    if (frequenzaVoce() == 0)
        return {};
    const std::scoped_lock chiave(turno());
    if (espeak_SetVoiceByName(nomeVoce(timbro)) != EE_OK)
        return {};
    espeak_SetSynthCallback(raccogli);
    QByteArray campioni;
    const QByteArray utf8 = testo.toUtf8();
    espeak_Synth(utf8.constData(), std::size_t(utf8.size()) + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8 | espeakENDPAUSE,
                 nullptr, &campioni);
    return campioni;
}

QStringList pezziDaDire(const QString &testo) {
    QStringList pezzi;
    QStringView resto(testo);
    while (!resto.isEmpty()) {
        const qsizetype quanto = primoPezzo(resto);
        if (const QStringView pezzo = resto.first(quanto).trimmed(); !pezzo.isEmpty())
            pezzi << pezzo.toString();
        resto = resto.sliced(quanto);
    }
    return pezzi;
}

} // namespace zuvora
