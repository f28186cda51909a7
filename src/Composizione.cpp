#include "Composizione.h"

#include "calling/forms/Boccuccia.h"
#include "calling/forms/GruppoPostazioni.h"
#include "calling/forms/PaginaDinDon.h"
#include "calling/forms/UtentiServizi.h"
#include "content/forms/Form3.h"
#include "content/forms/ImpostaFoto.h"
#include "content/forms/ImpostaVideo.h"
#include "content/forms/PaginaMusica.h"
#include "content/forms/PaginaRadio.h"
#include "content/forms/PaginaScorrevole.h"
#include "content/forms/youtube.h"
#include "kiosk/forms/Impostatotem.h"
#include "kiosk/forms/VarieImpostaTotem.h"
#include "library/forms/Elementi.h"
#include "library/forms/SceltaLayout.h"
#include "pannello/forms/PaginaClient.h"
#include "pannello/forms/PaginaPosizione.h"
#include "pannello/forms/PaginaRisoluzioni.h"

namespace zuvora {
namespace {

// A form that needs nothing but what every form is given.
template <class F> const ApriForm form = [](const Apertura &a) { F(a.ambiente, a.padre).mostraModale(); };

template <class P> const ApriPagina pagina = [](const Apertura &a) { return std::make_unique<P>(a); };

void mostraSceltaLayout(const Apertura &a) {
    SceltaLayout(a.ambiente, a.risoluzione, a.padre).mostraModale();
}
const ApriForm sceltaLayout = mostraSceltaLayout;

// The types of the workstations stand on the page of the server's data, below them.
std::unique_ptr<Pagina> creaPaginaClient(const Apertura &a) {
    auto pagina = std::make_unique<PaginaClient>(a);
    new GruppoPostazioni(*pagina); // the page's child
    return pagina;
}
const ApriPagina paginaClient = creaPaginaClient;

const ApriForm meteo = [](const Apertura &a) {
    Form3(a.ambiente, QStringLiteral(ZUVORA_HOST_METEO), a.padre).mostraModale();
};
const ApriForm playlistYouTube = [](const Apertura &a) {
    youtube(a.ambiente, QUrl(QStringLiteral(ZUVORA_SITO)), a.padre).mostraModale();
};
// The size of the kiosk's preview outlives the form that opens it.
ApriForm impostaTotem() {
    return [anteprima = std::make_shared<Misura>()](const Apertura &a) {
        Impostatotem(a.ambiente, *anteprima, a.padre).mostraModale();
    };
}

constexpr bool soloPrincipale = true;
constexpr bool tutte = false;
constexpr auto invariato = std::nullopt; // the title stays as it was

} // namespace

std::vector<VoceMenu> vociDelPannello() {
    return {
        {"PB1(2)", 720, "  Gestione Servizi", Disegno::Servizio, invariato, soloPrincipale, form<UtentiServizi>},
        {"PB1(9)", 1080, "  &Risoluzione Video (monitor/TV)", Disegno::SecondoSchermo,
         u"Risoluzione Video (Monitor/TV)", tutte, pagina<PaginaRisoluzioni>},
        {"PB1(10)", 1440, "  Impostazione Clie&nt", Disegno::Rete, u"Modalità Client", tutte, paginaClient},
        {"PB1(7)", 1800, "  Gestione Layout FrontEnd", Disegno::Riquadri, invariato, tutte, sceltaLayout},
        {"PushButton1", 2160, "  DinDon", Disegno::Campana, u"Gestione Din Don", tutte, pagina<PaginaDinDon>},
        {"Position", 2520, "  Posizione", Disegno::PosizioneFinestra, u"Posizione Schermi", tutte,
         pagina<PaginaPosizione>},
        {"PB1(5)", 2880, "  &Musica cartella (MP3)", Disegno::Nota, u"Musica -MP3", tutte, pagina<PaginaMusica>},
        {"Command0", 3240, "  Testo Scorrevole", Disegno::TestoScorrevole, u"Testo Scorrevole", tutte,
         pagina<PaginaScorrevole>},
        {"PB1(4)", 3600, "   Imposta &Immagini", Disegno::Immagini, u"Impostazione Immagini", tutte, form<ImpostaFoto>},
        {"PB1(3)", 3960, "  Imposta &Video", Disegno::Video, u"Impostazione Video", tutte, form<ImpostaVideo>},
        {"PushButton2", 4320, "  Decorazioni", Disegno::Decorazioni, u"Gestione Decorazioni", tutte, form<Elementi>},
        {"Command1", 4680, "  Imposta Meteo", Disegno::Meteo, u"Impostazione Meteo", tutte, meteo},
        {"PB1(1)", 5040, "  Modulo Vocale (TTS)", Disegno::Parlato, u"Modulo Vocale", tutte, form<Boccuccia>},
        {"PB1(6)", 5400, "  Gestione &Radio", Disegno::Radio, u"Gestione Radio", tutte, pagina<PaginaRadio>},
        {"PB1(11)", 6120, "  PlayList di &YouTube", Disegno::YouTube, u"Playlist YouTube", tutte, playlistYouTube},
        {"PB1(12)", 6480, "  Imposta schermata Totem", Disegno::Totem, invariato, soloPrincipale, impostaTotem()},
        {"PB1(13)", 6840, "  Varie impostazioni Totem", Disegno::Ingranaggio, invariato, soloPrincipale,
         form<VarieImpostaTotem>},
    };
}

} // namespace zuvora
