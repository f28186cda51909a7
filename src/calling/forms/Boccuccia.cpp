#include "calling/forms/Boccuccia.h"

#include "calling/logic/Frase.h"
#include "shell/host/ComponenteVoce.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/FileAtomico.h"
#include "shell/store/NomiFile.h"

#include <QApplication>
#include <QTextCursor>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int larghezza = 9360; // twips
constexpr int altezzaChiusa = 4305;
constexpr int altezzaAperta = 7575;
constexpr qint64 massimoFrase = 1024 * 1024; // bytes
constexpr qint64 massimoGuida = 4 * 1024 * 1024;
constexpr QStringView testoApri = u"Apri Info";
constexpr QStringView testoChiudi = u"Chiudi Info";

int acceso(bool si) {
    return si ? 1 : 0;
}

QString testoStato(const Voce &voce) {
    switch (voce.stato()) {
    case StatoVoce::Prepara:
        return u"La lettura comincia…"_s;
    case StatoVoce::Parla:
        return u"Lettura in corso…"_s;
    case StatoVoce::Finito:
        return u"Lettura finita."_s;
    case StatoVoce::Guasto:
        return u"Lettura non riuscita: "_s + voce.motivo();
    case StatoVoce::Tace:
        break;
    }
    return {};
}

} // namespace

Boccuccia::Boccuccia(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "Boccuccia", "Modulo Vocale (Text-to-Speech)", {larghezza, altezzaChiusa}, padre) {
    disponi();
    quando(m_sorgente, &GruppoRadio::cambiato, [this](int) { mostraVoci(); });
    alClic(PB1, [this](int i) { inserisci(i); });
    alClic(PushButton1, [this] { prova(); });
    alClic(ctButton2(1), [this] { salva(); });
    alClic(ctButton2(2), [this] { cambiaGuida(); });
    alClic(ctButton2(0), [this] { scarica(); });
    leggi();
    leggiGuida();
    Frase.setFocus();
}

void Boccuccia::disponi() {
    ctButton2(1).setRuolo(Ruolo::Principale);
    RT2.setAccessibleName(u"Informazioni sulle variabili della frase"_s);
    for (const auto &[i, bottone] : PB1)
        bottone->setToolTip(u"Inserisce %1 nella frase"_s.arg(variabili.at(std::size_t(i)).segno));
    for (const auto &[i, etichetta] : Label2)
        etichetta->setAllineamento(Qt::AlignHCenter);
    Stato.setAbbrevia(true);
    Testo.hide();
    FE1.hide();
    GroupBox4.hide(); // closed, it takes no focus
}

void Boccuccia::leggi() {
    const QString percorso = ambiente().percorsi.unisci(cartella(), nomi::frase);
    const FileLetto file = leggiFile(percorso, massimoFrase);
    if (!file.motivo.isEmpty() && ambiente().percorsi.esamina(percorso).specie != Specie::Manca)
        m_avviso = file.motivo;
    const FraseTTS letta = interpretaFrase(file.contenuto);
    Frase.setText(letta.frase);
    Check1.setChecked(letta.usa == 1);
    m_timbro.setScelto(letta.femminile ? 1 - *letta.femminile : -1);
    m_sorgente.setScelto(letta.sistema.value_or(-1));
    mostraVoci();
}

void Boccuccia::leggiGuida() {
    const FileLetto file = leggiFile(ambiente().percorsi.unisci(cartella(), nomi::aiutoVoce), massimoGuida);
    if (file.motivo.isEmpty())
        RT2.mostra(leggiRtf(file.contenuto));
    else
        RT2.mostraAvviso(u"Le informazioni non si possono mostrare. "_s + file.motivo);
}

void Boccuccia::attivata() {
    if (const QString avviso = std::exchange(m_avviso, {}); !avviso.isEmpty())
        avvisa(u"La frase salvata non si può leggere !"_s, avviso);
}

void Boccuccia::inserisci(int variabile) {
    QTextCursor cursore = Frase.textCursor();
    cursore.insertText(testoVariabile(variabile, cursore.hasSelection()));
    Frase.setTextCursor(cursore);
    Frase.setFocus();
}

void Boccuccia::salva() {
    const FraseTTS frase{Frase.text(), acceso(Check1.isChecked()), acceso(RB1(0).isChecked()),
                         acceso(!VociPS(0).isChecked())};
    QString motivo = motivoNonSalvabile(frase.frase);
    if (const auto record = componiFrase(frase); motivo.isEmpty() && record)
        motivo = scriviFile(ambiente().percorsi.unisci(cartella(), nomi::frase), *record);
    if (motivo.isEmpty())
        ctButton2(1).spunta();
    else
        avvisa(u"Frase non salvata !"_s, motivo);
}

void Boccuccia::EspandiFrase() {
    Testo.setText({});
    FE1.setText({});
    Testo.setText(Frase.text());
    Testo.setText(zuvora::EspandiFrase(Testo.text(),
                                       [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }));
}

void Boccuccia::prova() {
    EspandiFrase();
    FE1.setText(Testo.text());
    m_voce.reset();
    VoceSistema.reset();
    if (VociPS(0).isChecked()) {
        parlaProgramma();
    } else if (VociPS(1).isChecked()) {
        VoceSistema = creaVoceSistema();
        VoceSistema->setAlCambio([this] { mostraStato(*VoceSistema); });
        VoceSistema->parla(FE1.text(), std::nullopt);
    } else {
        Stato.setCaption(u"Scegliere prima una voce."_s);
    }
}

void Boccuccia::parlaProgramma() {
    EsitoComponenteVoce esito = creaVoce(ambiente().piattaforma.cartellaEseguibile());
    if (esito.voce == nullptr) {
        Stato.setCaption(esito.motivo.simplified());
        return;
    }
    std::optional<Timbro> timbro;
    if (m_timbro.scelto() >= 0)
        timbro = m_timbro.scelto() == 0 ? Timbro::Femminile : Timbro::Maschile;
    m_voce = std::move(esito.voce);
    m_voce->setAlCambio([this] { mostraStato(*m_voce); });
    m_voce->parla(FE1.text(), timbro);
}

void Boccuccia::mostraStato(const Voce &voce) {
    Stato.setCaption(testoStato(voce));
}

// The system's voice has no choice of sex here; what was chosen stays.
void Boccuccia::mostraVoci() {
    for (const auto &[i, bottone] : RB1)
        bottone->setEnabled(m_sorgente.scelto() != 1);
}

void Boccuccia::cambiaGuida() {
    const bool apre = ctButton2(2).Caption() == testoApri;
    setMisuraInterna({larghezza, apre ? altezzaAperta : altezzaChiusa});
    GroupBox4.setVisible(apre);
    ctButton2(2).setCaption((apre ? testoChiudi : testoApri).toString());
}

} // namespace zuvora
