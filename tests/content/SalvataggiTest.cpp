// Every save of the room to the database, against what may hinder it.
#include "kit/Salvataggi.h"
#include "content/forms/Form3.h"
#include "content/forms/GestioneRadio.h"
#include "content/forms/ImpostaFoto.h"
#include "content/forms/ImpostaVideo.h"
#include "content/forms/PaginaMusica.h"
#include "content/forms/PaginaRadio.h"
#include "content/forms/PaginaScorrevole.h"
#include "content/forms/youtube.h"
#include "kit/Stanza.h"
#include "shell/store/EngineError.h"

namespace zuvora {
namespace {

using Finestra = std::unique_ptr<QWidget>;

template <class F> Finestra playlist(InstallazioneProva &i) {
    for (const QString &nome : {u"sala.zvi"_s, u"sala.zvv"_s}) {
        QFile file(i.file(nome));
        if (file.open(QIODevice::WriteOnly))
            file.write("/dev/null\r\n");
    }
    return apriForm<F>(i.ambiente, nullptr);
}
Finestra foto(InstallazioneProva &i) {
    auto form = playlist<ImpostaFoto>(i);
    digita(*form, "text1", u"7"_s);
    return form;
}
Finestra filmati(InstallazioneProva &i) {
    i.esegui(u"INSERT INTO VideoYT (Titolo, Url) VALUES ('A', 'https://a/')"_s);
    return apriForm<youtube>(i.ambiente, QUrl(), nullptr);
}
Finestra filmatoNuovo(InstallazioneProva &i) {
    auto form = filmati(i);
    clic(*form, "BTN(0)");
    trova<EditMultilinea>(*form, "Codice").setText(u"src=\"https://b/\" frameborder"_s);
    digita(*form, "Titolo", u"B"_s);
    return form;
}
template <class P> Finestra pagina(InstallazioneProva &i) {
    i.esegui(u"INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('A', 'http://a/')"_s);
    return std::make_unique<PaginaAperta<P>>(i);
}
Finestra musica(InstallazioneProva &i) {
    auto aperta = pagina<PaginaMusica>(i);
    digita(*aperta, "FE1(1)", u"/musica"_s);
    return aperta;
}
Finestra scorrevole(InstallazioneProva &i) {
    auto aperta = pagina<PaginaScorrevole>(i);
    trova<EditMultilinea>(*aperta, "testo").setText(u"da non perdere"_s);
    return aperta;
}
Finestra meteo(InstallazioneProva &i) {
    auto form = apriForm<Form3>(i.ambiente, u"https://meteo.example"_s, nullptr);
    digita(*form, "FE1", u"58"_s);
    return form;
}

TEST(Salvataggi, WhatHindersOneIsToldAndNothingIsLost) {
    const CartellaCorrente qui;
    Data Data4;
    const auto stazione = [&](const std::optional<VoceRadio> &voce) {
        return [&Data4, voce](InstallazioneProva &i) -> Finestra {
            i.esegui(u"INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('A', 'http://a/')"_s);
            apri(Data4, i.cartella(), elencoRadio.toString());
            auto form = apriForm<GestioneRadio>(i.ambiente, Data4, voce, nullptr);
            digita(*form, "text1(0)", u"Onda"_s);
            digita(*form, "text1(1)", u"http://o/"_s);
            return form;
        };
    };
    provaSalvataggi({
        {"foto", "Configurazione", foto, preme("Command89"), 0, 1},
        {"video", "Configurazione", playlist<ImpostaVideo>, preme("Command89"), 0, 1},
        {"youtube nuova", "VideoYT", filmatoNuovo, preme("Confermaannulla(0)")},
        {"youtube cancella", "VideoYT", filmati, preme("BTN(1)"), 1, 1},
        {"youtube predefinita", "Configurazione", filmati, preme("Predefinito"), 0, 1},
        {"radio nuova", "radio", stazione({}), preme("CBT(1)")},
        {"radio modifica", "radio", stazione(VoceRadio{u"A"_s, {}}), preme("CBT(1)")},
        {"radio cancella", "radio", pagina<PaginaRadio>, preme("btnRadio(2)"), 1, 1},
        {"musica", "Configurazione", musica, preme("Salva5")},
        {"scorrevole", "Configurazione", scorrevole, preme("salva6")},
        {"meteo", "Configurazione", meteo, preme("CBT(2)"), 0, 1},
    });
}

// A form without its table opens all the same and says why it is empty.
TEST(SenzaTabella, EachFormOpens) {
    const CartellaCorrente qui;
    const std::pair<const char *, Finestra (*)(InstallazioneProva &)> casi[] = {
        {"Configurazione", playlist<ImpostaFoto>},
        {"Configurazione", meteo},
        {"VideoYT", [](InstallazioneProva &i) -> Finestra { return apriForm<youtube>(i.ambiente, QUrl(), nullptr); }}};
    for (const auto &[tabella, apri] : casi) {
        InstallazioneProva i;
        i.esegui(u"DROP TABLE "_s + QLatin1StringView(tabella));
        const Finestra finestra = apri(i);
        EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(QLatin1StringView(tabella))) << tabella;
        const auto *tempo = finestra->findChild<QLineEdit *>(u"text1"_s); // stored with the next default
        EXPECT_TRUE(tempo == nullptr || tempo->text().isEmpty()) << tabella;
    }
    InstallazioneProva i;
    i.esegui(u"DROP TABLE radio"_s);
    EXPECT_THROW(PaginaAperta<PaginaRadio>{i}, EngineError); // told by the panel
}

} // namespace
} // namespace zuvora
