#include "library/forms/SceltaLayout.h"

#include "library/forms/ApriTela.h"
#include "library/forms/CancellaLayout.h"
#include "library/forms/CopiaLayout.h"
#include "shell/disegni/Disegni.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Tastiera.h"

#include <QMouseEvent>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int primaLinea = 600; // twips
constexpr int passoLinea = 360;
constexpr int massimoTesto = 255; // characters
constexpr int larghezzaDescrizione = 2775;
constexpr int larghezzaDescrizioneBase = 3135; // no button behind it
constexpr QSize latoIcona{15, 15};
constexpr int nessuna = -1; // line of the group

constexpr int topLinea(int linea) {
    return primaLinea + passoLinea * linea;
}

Posto postoTesto(int indice) {
    const int linea = indice / 2;
    if (indice % 2 == 0)
        return {600, topLinea(linea), 1095, 285};
    return {1680, topLinea(linea), linea == 0 ? larghezzaDescrizioneBase : larghezzaDescrizione, 285};
}

// Set from the program, a text shows its beginning.
void mostraTesto(Edit &campo, const QString &testo) {
    campo.setText(testo);
    campo.setCursorPosition(0);
}

// A text longer than its box is there to read as a whole all the same.
void suggerisciTesto(Edit &campo) {
    const bool intero = campo.fontMetrics().horizontalAdvance(campo.text()) < campo.contentsRect().width();
    campo.setToolTip(intero ? QString() : campo.text());
}

} // namespace

SceltaLayout::SceltaLayout(const Ambiente &contesto, int risoluzione, QWidget *padre)
    : Form(contesto, "SceltaLayout", "Selezione del Layout", {5175, 5595}, padre), m_risoluzione(risoluzione),
      m_lette(lineeIniziali()),
      RB1("RB1", 0, numeroLayout - 1,
          [this](int i, const char *nome) {
              return std::make_unique<RadioButton>(&GroupBox1, nome, "", Posto{240, topLinea(i), 330, 255});
          }),
      text1("text1", 0, 2 * numeroLayout - 1,
            [this](int i, const char *nome) { return std::make_unique<Edit>(&GroupBox1, nome, postoTesto(i)); }),
      PPBB1("PPBB1", 1, numeroLayout - 1, [this](int i, const char *nome) {
          return std::make_unique<Button>(&GroupBox1, nome, "", Posto{4440, topLinea(i), 375, 285});
      }) {
    disponiLinee();
    Label1.setAlignment(Qt::AlignLeft | Qt::AlignVCenter); // to the box beside it
    Label2.setReadOnly(true);
    Label2.setFocusPolicy(Qt::ClickFocus);
    PB1(3).setRuolo(Ruolo::Principale);
    bottoneDi(GroupBox1, PB1(1));
    riempi();
    alClic(PPBB1, [this](int i) { CancellaLayout(ambiente(), QString::number(i), this).mostraModale(); });
    alClic(PB1(0), [this] { scarica(); });
    alClic(PB1(1), [this] { salvaDati(); });
    alClic(PB1(2), [this] { rendiPredefinita(); });
    alClic(PB1(3), [this] { CaricaLayout(); });
    alClic(PB1(4), [this] { CopiaLayout(ambiente(), this).mostraModale(); });
}

void SceltaLayout::disponiLinee() {
    for (int i = 0; i < numeroLayout; ++i) {
        Edit &nome = text1(2 * i);
        Edit &descrizione = text1(2 * i + 1);
        RB1(i).setAccessibleName(nomeLinea(i));
        nome.setAccessibleName(u"Nome di "_s + nomeLinea(i));
        descrizione.setAccessibleName(u"Descrizione di "_s + nomeLinea(i));
        nome.setReadOnly(true);
        nome.installEventFilter(this);
        nome.setFocusPolicy(Qt::ClickFocus); // Tab goes from the radio buttons to what can be edited
        descrizione.setReadOnly(i == 0);
        nome.setMaxLength(massimoTesto);
        descrizione.setMaxLength(massimoTesto);
        for (Edit *campo : {&nome, &descrizione})
            quando(*campo, &Edit::textChanged, [campo] { suggerisciTesto(*campo); });
    }
    for (const auto &[i, bottone] : PPBB1) {
        bottone->setIcon(icona(Disegno::Pulisci));
        bottone->setIconSize(latoIcona);
        bottone->setToolTip(u"Pulisce il Layout"_s);
        bottone->setAccessibleName(u"Pulisce il "_s + nomeLinea(i));
        bottone->setRuolo(Ruolo::Distruttivo);
    }
}

void SceltaLayout::riempi() {
    const auto linea = lineaPredefinita(leggiQualeLayout(apri(Data2, cartella(), u"Configurazione"_s)));
    Label2.setText(testoPredefinito(linea));
    m_gruppo.setScelto(linea.value_or(nessuna));
    m_lette = leggiLinee(apri(Data1, cartella(), u"DescrizioneLayout"_s));
    for (int i = 0; i < numeroLayout; ++i) {
        const LineaLayout &letta = m_lette[std::size_t(i)];
        mostraTesto(text1(2 * i), letta.nome);
        mostraTesto(text1(2 * i + 1), letta.descrizione);
        text1(2 * i + 1).setEnabled(letta.presente);
    }
    m_avviso = avvisoLinee(m_lette);
}

void SceltaLayout::attivata() {
    if (const QString avviso = std::exchange(m_avviso, {}); !avviso.isEmpty())
        ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloMessaggi(), avviso);
}

// The name of a line acts like its radio button; a double click opens the layout as well.
bool SceltaLayout::eventFilter(QObject *oggetto, QEvent *evento) {
    const bool doppio = evento->type() == QEvent::MouseButtonDblClick;
    const bool clic = doppio || evento->type() == QEvent::MouseButtonPress;
    if (!clic || static_cast<QMouseEvent *>(evento)->button() != Qt::LeftButton)
        return false;
    for (int i = 0; i < numeroLayout; ++i)
        if (oggetto == &text1(2 * i))
            m_gruppo.setScelto(i);
    if (doppio) // once the click is over: the designer must not open inside it
        QMetaObject::invokeMethod(
            this, [this] { proteggi([this] { CaricaLayout(); }); }, Qt::QueuedConnection);
    return false;
}

LineeLayout SceltaLayout::linee() const {
    LineeLayout linee = m_lette;
    for (int i = 0; i < numeroLayout; ++i) {
        linee[std::size_t(i)].nome = text1(2 * i).text();
        linee[std::size_t(i)].descrizione = text1(2 * i + 1).text();
    }
    return linee;
}

std::optional<int> SceltaLayout::lineaScelta() const {
    return m_gruppo.scelto() == nessuna ? std::nullopt : std::optional(m_gruppo.scelto());
}

void SceltaLayout::salvaDati() {
    mostra(salvaLinee(apri(Data1, cartella(), u"DescrizioneLayout"_s), linee()));
}

void SceltaLayout::rendiPredefinita() {
    const auto linea = lineaScelta();
    const EsitoPredefinito esito = impostaPredefinito(cartella(), linea);
    if (esito.salvato)
        Label2.setText(testoPredefinito(linea));
    mostra(esito.messaggio);
}

void SceltaLayout::CaricaLayout() {
    const auto linea = lineaScelta();
    if (!linea) {
        mostra(messaggioNessunaLinea());
        return;
    }
    valori().LayoutCorrente = tabellaLayout(*linea);
    apriTela(ambiente(), m_risoluzione, valori().LayoutCorrente, this);
}

void SceltaLayout::mostra(const Messaggio &messaggio) {
    avvisa(messaggio.riga0, messaggio.riga1);
}

} // namespace zuvora
