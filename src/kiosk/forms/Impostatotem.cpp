#include "kiosk/forms/Impostatotem.h"

#include "kiosk/forms/ImpoRete.h"
#include "kiosk/forms/LayoutTotem.h"
#include "library/forms/ImpostaSfondo.h"
#include "shell/host/Dialoghi.h"

#include <QDate>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The window of a preview before any screen with an arrangement was chosen: 800 x 600 pixels.
constexpr Misura finestraMinima = {12000, 9000};

const QString perTitolo = u"Titolo"_s;
const QString perData = u"LaData"_s;
const QString perPulsante = u"Pulsante"_s;

} // namespace

Impostatotem::Impostatotem(const Ambiente &contesto, Misura &anteprima, QWidget *padre)
    : Form(contesto, "Impostatotem", "Imposta schermata del Totem", {7215, 7575}, padre), m_riga(cartella()),
      m_anteprima(anteprima),
      m_titolo(&GroupBox3,
               {"FontTitolo", "MisuraTitolo", "Check1Titolo", "Check2Titolo", "ColoreTitolo", "CP1Titolo", "PBTitolo"},
               u"del titolo"_s, 600, contesto.dialoghi),
      m_data(&GroupBox4, {"FontData", "MisuraData", "Check1Data", "Check2Data", "ColoreData", "CP1Data", "PBData"},
             u"della data"_s, 600, contesto.dialoghi),
      m_pulsanti(&GroupBox5, {"FE1", "FE2", "CB1", "CB2", "FE3", "CP1", "PushButton1"}, u"dei pulsanti"_s, 390,
                 contesto.dialoghi),
      RT("RT", 0, static_cast<int>(schermiTotem.size()) - 1, [this](int i, const char *nome) {
          const QByteArray didascalia = schermiTotem.at(std::size_t(i)).didascalia.toUtf8();
          return std::make_unique<RadioButton>(&GroupBox6, nome, didascalia.constData(),
                                               Posto{120, 420 + 480 * i, 2175, 285});
      }) {
    nomina();
    collega();
    m_riga.carica();
    mostra();
}

void Impostatotem::nomina() {
    Label2.hide();
    Label3.hide();
    PRT.setAccessibleName(u"Percorso di rete del Totem"_s);
    PercorsoTotem.setAccessibleName(u"Scegli il percorso di rete"_s);
    elimina.rendiCliccabile(u"Elimina il percorso di rete"_s);
    FF1.setAccessibleName(u"Sfondo del Totem"_s);
    ImpostaSfondototem.setAccessibleName(u"Scegli lo sfondo"_s);
    EliminaSfondo.rendiCliccabile(u"Elimina lo sfondo"_s);
    for (PictureBox *immagine : {&elimina, &EliminaSfondo})
        immagine->setToolTip(immagine->accessibleName());
    TitTot.setAccessibleName(u"Titolo del Totem"_s);
    Esempio.setCaption(dataInParole(QDate::currentDate()));
    NrServizi.setSolaLettura(u"I servizi si attivano in Gestione Servizi."_s);
    NrServizi.setFocusPolicy(Qt::ClickFocus);
    Combo1.setAccessibleName(u"Servizi attivi"_s);
    Crea.setToolTip(u"...per solo posizionamento pulsanti (no sfondo)"_s);
    SiSalva.setRuolo(Ruolo::Principale);
}

void Impostatotem::collega() {
    quando(m_schermo, &GruppoRadio::cambiato, [this](int indice) { scegliSchermo(indice); });
    alClic(PercorsoTotem, [this] { scegliPercorso(); });
    quando(elimina, &PictureBox::clicked, [this] { PRT.setText({}); });
    alClic(ImpostaSfondototem, [this] { scegliSfondo(); });
    quando(EliminaSfondo, &PictureBox::clicked, [this] { FF1.setText({}); });
    alClic(m_titolo.scegli, [this] { ScegliFont(perTitolo); });
    alClic(m_data.scegli, [this] { ScegliFont(perData); });
    alClic(m_pulsanti.scegli, [this] { ScegliFont(perPulsante); });
    alClic(SiSalva, [this] { salva(); });
    alClic(Crea, [this] { apriAnteprima(); });
    alClic(Command5, [this] { scarica(); });
}

std::vector<Impostatotem::Legame> Impostatotem::legami() {
    return {{CampoTotem::PercorsoReteTotem, &PRT},
            {CampoTotem::SfondoTotem, &FF1},
            {CampoTotem::TitoloTotem, &TitTot},
            {CampoTotem::FontTitolo, &m_titolo.nome},
            {CampoTotem::FontSizeTitolo, &m_titolo.misura},
            {CampoTotem::FontForecolorTitolo, &m_titolo.colore},
            {CampoTotem::FontBoldTitolo, nullptr, &m_titolo.grassetto},
            {CampoTotem::FontItalicTitolo, nullptr, &m_titolo.italico},
            {CampoTotem::FontData, &m_data.nome},
            {CampoTotem::FontSizeData, &m_data.misura},
            {CampoTotem::FontForecolorData, &m_data.colore},
            {CampoTotem::FontBoldData, nullptr, &m_data.grassetto},
            {CampoTotem::FontItalicData, nullptr, &m_data.italico},
            {CampoTotem::Font, &m_pulsanti.nome},
            {CampoTotem::FontSize, &m_pulsanti.misura},
            {CampoTotem::FontForecolor, &m_pulsanti.colore},
            {CampoTotem::FontBold, nullptr, &m_pulsanti.grassetto},
            {CampoTotem::FontItalic, nullptr, &m_pulsanti.italico},
            {CampoTotem::TestoVisibile, nullptr, &TestoVisibile},
            {CampoTotem::DataVisibile, nullptr, &DataVisibile}};
}

void Impostatotem::mostra() {
    const ContenutoTotem &caricato = m_riga.contenuto();
    for (const Legame &legame : legami()) {
        if (legame.casella != nullptr)
            legame.casella->setText(caricato[legame.campo]);
        else
            legame.spunta->setChecked(caricato[legame.campo] == u"1"_s);
    }
    if (const QString &schermo = caricato[CampoTotem::RisoluzioneTotem]; !schermo.isEmpty()) {
        m_schermo.setScelto(schermo.toInt());
        scegliSchermo(schermo.toInt());
    }
    NrServizi.setText(QString::number(m_riga.servizi().size()));
    for (const QString &servizio : m_riga.servizi())
        Combo1.AddItem(servizio);
    if (Combo1.ListCount() > 0)
        Combo1.setListIndex(0);
    const bool senzaServizi = m_riga.servizi().isEmpty() && !m_riga.guasto();
    Avviso.setVisible(senzaServizi);
    if (senzaServizi) {
        Avviso.setCaption(u"Nessun servizio attivo: sfondo, titolo, data e font già salvati qui non si vedono. Il "
                          "salvataggio li lascia come sono, tranne quelli che si cambiano."_s);
        Avviso.raise();
        Combo1.setAccessibleDescription(Avviso.Caption());
    }
}

ContenutoTotem Impostatotem::contenuto() {
    ContenutoTotem adesso;
    for (const Legame &legame : legami())
        adesso[legame.campo] = legame.casella != nullptr    ? legame.casella->text()
                               : legame.spunta->isChecked() ? u"1"_s
                                                            : u"0"_s;
    adesso[CampoTotem::RisoluzioneTotem] = m_schermo.scelto() < 0 ? QString() : Label2.Caption();
    return adesso;
}

// What stopped the load early is told once the form is there.
void Impostatotem::attivata() {
    if (std::exchange(m_guastoDetto, true) || !m_riga.guasto())
        return;
    ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Critica, titoloMessaggi(),
                                  u"Le impostazioni del Totem non sono state lette per intero.\n\n"_s +
                                      m_riga.guasto()->frase());
}

void Impostatotem::scegliSchermo(int indice) {
    Label2.setCaption(QString::number(indice));
}

void Impostatotem::salva() {
    m_riga.salva(contenuto());
    SiSalva.spunta();
}

void Impostatotem::scegliPercorso() {
    if (const auto percorso = chiediPercorsoTotem(ambiente(), this))
        PRT.setText(*percorso);
}

void Impostatotem::scegliSfondo() {
    if (const auto percorso = apriSfondoTotem(ambiente(), this))
        FF1.setText(*percorso);
}

GruppoFont &Impostatotem::gruppo() {
    return BersaglioFont == perTitolo ? m_titolo : BersaglioFont == perData ? m_data : m_pulsanti;
}

void Impostatotem::ScegliFont(const QString &bersaglio) {
    BersaglioFont = bersaglio;
    if (const auto scelto = ambiente().dialoghi.scegliFont(this, gruppo().font()))
        gruppo().setFont(*scelto);
}

void Impostatotem::apriAnteprima() {
    const int schermo = m_schermo.scelto();
    if (schermo >= 0 && schermiTotem.at(std::size_t(schermo)).larghezza > 0)
        m_anteprima = {schermiTotem.at(std::size_t(schermo)).larghezza, schermiTotem.at(std::size_t(schermo)).altezza};
    Label3.setCaption(u"Crea"_s);
    RichiestaAnteprima richiesta;
    if (schermo >= 0)
        richiesta.schermo = schermo;
    for (int i = 0; i < Combo1.ListCount(); ++i)
        richiesta.servizi << Combo1.List(i);
    richiesta.testoVisibile = TestoVisibile.isChecked();
    richiesta.dataVisibile = DataVisibile.isChecked();
    richiesta.finestra = m_anteprima.width > 0 ? m_anteprima : finestraMinima;
    LayoutTotem anteprima(ambiente(), richiesta, this);
    Combo1.setListIndex(Combo1.ListCount() - 1);
    anteprima.mostraModale();
}

} // namespace zuvora
