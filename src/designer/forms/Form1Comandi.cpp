// What the toolbox and the presses on elements lead to.
#include "designer/forms/AnteprimaTGOnline.h"
#include "designer/forms/Form1.h"
#include "designer/forms/Form2.h"
#include "designer/logic/ScritturaLayout.h"
#include "shell/host/Attesa.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

void Form1::apriForm2(int posto) {
    Form2(
        ambiente(), m_layout, posto, [this] { aggiornaTutto(); }, this)
        .mostraModale();
}

// A chosen file may have changed since it was read. False when the user called the reading off.
bool Form1::rileggi(const QString &percorso) {
    if (percorso.isEmpty())
        return true;
    const auto letta =
        aspettaEsito<QImage>(ambiente(), this, u"Lettura dell'immagine in corso..."_s, m_immagini.lettura(percorso));
    if (!letta)
        return false;
    m_immagini.tieni(percorso, *letta);
    m_scena.immagini().dimentica(percorso);
    return true;
}

void Form1::apriDecorazione(int indice) {
    const auto scelta = m_apritori.decorazione(this, indice);
    if (!scelta || !rileggi(scelta->percorso))
        return;
    if (!applicaDecorazione(m_layout, indice, scelta->percorso, scelta->secondoPiano, m_immagini))
        return mostra({u"L'immagine scelta per la decorazione"_s, u"non si trova o non è leggibile."_s});
    const int posto = DisplayLayout::postoDi(TipoElemento::Image1, indice);
    m_elementi.impila(posto, picHandle.front()->presa());
    aggiorna(posto);
}

void Form1::apriSfondo() {
    const auto imposta = [this](const QString &percorso) {
        const bool caricata = rileggi(percorso) && applicaSfondo(m_layout, percorso, m_immagini);
        if (caricata)
            aggiornaTutto();
        return caricata;
    };
    m_apritori.sfondo(this, {imposta, [imposta] { imposta({}); }});
}

void Form1::apriAnteprimaTG() {
    const int posto = DisplayLayout::postoDi(TipoElemento::WB2);
    const auto accettata = [this, posto](const Dimensione &misura) {
        m_layout[posto].area.width = misura.width;
        m_layout[posto].area.height = misura.height;
        aggiorna(posto);
    };
    const Area &area = m_layout[posto].area;
    AnteprimaTGOnline(ambiente(), {area.width, area.height}, valori().PercorsoTG, accettata, this).mostraModale();
}

void Form1::comando(int indice) {
    const BottoneStrumenti &bottone = *bottoneStrumenti(indice);
    switch (bottone.comando) {
    case Comando::PiazzaElemento:
        return piazzaElemento(bottone);
    case Comando::PiazzaPannello:
        return piazzaPannello();
    case Comando::PiazzaDecorazione:
        return piazzaDecorazione();
    case Comando::ApriSfondo:
        return apriSfondo();
    case Comando::ApriColoreSfondo:
        return apriForm2(DisplayLayout::postoDi(TipoElemento::Tela));
    case Comando::SecondoSchermo:
        return VaiSecondoSchermo();
    case Comando::SalvaPosizione:
        return SalvaPosizioneFinestra();
    case Comando::Salva:
        return SalvaLayout();
    case Comando::Chiudi:
        return scarica();
    }
}

void Form1::piazzaElemento(const BottoneStrumenti &bottone) {
    const int posto = DisplayLayout::postoDi(bottone.tipo, bottone.indiceElemento);
    if (zuvora::piazzaElemento(m_layout, bottone.tipo, bottone.indiceElemento))
        aggiorna(posto);
    indica(posto);
}

void Form1::piazzaPannello() {
    const auto indice = zuvora::piazzaPannello(m_layout);
    if (!indice)
        return mostra(messaggioPannelliFiniti());
    const int posto = DisplayLayout::postoDi(TipoElemento::Pannello1, *indice);
    aggiorna(posto);
    indica(posto);
}

void Form1::piazzaDecorazione() {
    const auto indice = zuvora::piazzaDecorazione(m_layout);
    if (!indice)
        return mostra(messaggioDecorazioniFinite());
    const int posto = DisplayLayout::postoDi(TipoElemento::Image1, *indice);
    aggiorna(posto);
    indica(posto);
    apriDecorazione(*indice);
    indica(posto);
}

// The element may lie under the toolbox or under another one.
void Form1::indica(int posto) {
    if (const QRect parte = m_scena.parte(posto); !parte.isEmpty())
        m_palpito.mostra(parte, m_scena.figura(posto, devicePixelRatioF()));
}

// What was written before a failure stays written: a layout half saved is offered to be saved again at once.
void Form1::SalvaLayout() {
    for (bool ancora = true; ancora;) {
        setCursor(Qt::WaitCursor);
        const EsitoScrittura esito = zuvora::SalvaLayout(m_layout, cartella());
        unsetCursor();
        aggiorna(DisplayLayout::postoDi(TipoElemento::WB1)); // a save gives the weather box its size
        const Messaggio messaggio = messaggioSalva(esito);
        if (esito.riuscito())
            return mostra(messaggio);
        ancora = conferma(messaggio.riga0, messaggio.riga1 + u"\nSalvare di nuovo adesso ?"_s);
    }
}

void Form1::mostra(const Messaggio &messaggio) {
    avvisa(messaggio.riga0, messaggio.riga1);
}

} // namespace zuvora
