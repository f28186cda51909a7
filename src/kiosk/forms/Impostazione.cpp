#include "kiosk/forms/Impostazione.h"

#include "kiosk/forms/AttesaTotem.h"
#include "kiosk/logic/ArchivioTotem.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Tastiera.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int primaRiga = 480; // twips
constexpr int passoRighe = 360;
const QString titoloConferma = u"Conferma"_s;

// The n-th line's place in a column.
Posto sullaRiga(int servizio, Posto colonna) {
    colonna.top += primaRiga + passoRighe * (servizio - 1);
    return colonna;
}

template <class C> auto colonna(QWidget *padre, const char *nome, const Posto &posto, const char *didascalia = "") {
    return Schiera<C>(nome, 1, serviziNumerati, [=](int i, const char *nomeRiga) {
        if constexpr (std::is_same_v<C, Edit>)
            return std::make_unique<Edit>(padre, nomeRiga, sullaRiga(i, posto));
        else
            return std::make_unique<C>(padre, nomeRiga, didascalia, sullaRiga(i, posto));
    });
}

ColonnaServizi testi(const Schiera<Edit> &caselle) {
    ColonnaServizi valori;
    for (const auto &[indice, casella] : caselle)
        valori.at(static_cast<std::size_t>(indice - 1)) = casella->text();
    return valori;
}

} // namespace

Impostazione::Impostazione(const Ambiente &contesto, const QString &cartellaTotem, QWidget *padre)
    : Form(contesto, "Impostazione", "Impostazione", {6975, 8175}, padre), m_cartellaTotem(cartellaTotem),
      Label2(colonna<Label>(this, "Label2", {120, 0, 2655, 285})),
      Modifnr(colonna<Edit>(this, "Modifnr", {2880, 0, 975, 285})),
      Na1(colonna<Button>(this, "Na1", {3930, 0, 855, 285}, "Esegui")),
      NumIniz(colonna<Edit>(this, "NumIniz", {5040, 0, 855, 285})) {
    for (const auto &[indice, casella] : Modifnr) {
        casella->setFiltro(soloCifre);
        casella->setSelezionaAlFuoco();
        casella->setSvuotaAppunti(ambiente().piattaforma, Edit::Svuota::AlFuoco);
    }
    for (int i = 1; i <= serviziNumerati; ++i) {
        bottoneDi(Modifnr(i), Na1(i));
        bottoneDi(NumIniz(i), Salvain);
    }
    alClic(Na1, [this](int servizio) { modificaNumero(servizio); });
    Salvain.setAccessibleName(u"Esegui, tutti i numeri iniziali"_s);
    alClic(Salvain, [this] { impostaIniziali(); });
    alClic(PB1_0, [this] { scarica(); });
    leggi();
}

// The tall button comes after the column that it writes, not after its first line.
void Impostazione::correggiFuochi() {
    setTabOrder(&NumIniz(serviziNumerati), &Salvain);
    setTabOrder(&Salvain, &PB1_0);
}

// A kiosk that doesn't answer must not freeze the window: it is asked off the thread, and no key or click gets through
// meanwhile.
template <class F> void Impostazione::conTotem(F lavoro) {
    const AttesaTotem attesa(m_occupata);
    const std::function<bool()> domanda = [lavoro, percorsi = ambiente().percorsi, cartellaTotem = m_cartellaTotem] {
        lavoro(fileTotem(percorsi, cartellaTotem, nomi::archivioTotem));
        return true;
    };
    alTotem(domanda);
}

void Impostazione::leggi() {
    const ColonnaServizi nomi = nomiServizi(cartella());
    const auto numeri = std::make_shared<std::array<ColonnaServizi, 2>>();
    conTotem([numeri](const QString &archivio) {
        (*numeri)[0] = leggiNumeri(archivio, TabellaNumeri::Numerazione);
        (*numeri)[1] = leggiNumeri(archivio, TabellaNumeri::NumerazioneIniziale);
    });
    for (int i = 1; i <= serviziNumerati; ++i) {
        const auto posto = static_cast<std::size_t>(i - 1);
        const QString servizio = nomi[posto].isEmpty() ? u"Riga %1"_s.arg(i) : nomi[posto];
        Label2(i).setCaption(nomi[posto]);
        Label2(i).setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // as the texts in the boxes stand
        Modifnr(i).setText((*numeri)[0][posto]);
        NumIniz(i).setText((*numeri)[1][posto]);
        Modifnr(i).setAccessibleName(u"Numero attuale, "_s + servizio);
        NumIniz(i).setAccessibleName(u"Numero iniziale, "_s + servizio);
        Na1(i).setAccessibleName(u"Esegui, "_s + servizio);
    }
}

void Impostazione::modificaNumero(int servizio) {
    const QString numero = numeroDaScrivere(Modifnr(servizio).text());
    Modifnr(servizio).setText(numero);
    conTotem([servizio, numero](const QString &archivio) { scriviNumero(archivio, servizio, numero); });
    ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloConferma, u"Numero Modificato !"_s);
}

void Impostazione::impostaIniziali() {
    for (const auto &[indice, casella] : NumIniz)
        casella->setText(numeroDaScrivere(casella->text()));
    conTotem([numeri = testi(NumIniz)](const QString &archivio) { scriviNumeriIniziali(archivio, numeri); });
    ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloConferma, u"Numerazione impostata !"_s);
}

} // namespace zuvora
