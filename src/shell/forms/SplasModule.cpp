#include "shell/forms/SplasModule.h"

#include "shell/forms/AAAggiorna.h"
#include "shell/forms/FormUscita.h"
#include "shell/forms/MsgForm.h"
#include "shell/forms/NomeServer.h"
#include "shell/forms/PaginaClient.h"
#include "shell/forms/PaginaPosizione.h"
#include "shell/forms/PaginaRisoluzioni.h"
#include "shell/forms/VociMenu.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/Versione.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int LarghezzaVoce = 2295; // twips
constexpr int AltezzaVoce = 300;
constexpr int LeftVoce = 120;

// Only the principal installation may open these.
constexpr const char *SoloPrincipale[] = {"PB1(2)", "PB1(12)", "PB1(13)"};

QFont ingrandito(const QFont &base, double punti) {
    QFont font = base;
    font.setPointSizeF(punti);
    font.setBold(true);
    return font;
}

} // namespace

SplasModule::SplasModule(const Ambiente &ambiente_, Apritori apritori, const QUrl &sito)
    : Form(ambiente_, "SplasModule", "Zuvora  -  Modulo di Impostazione", {8685, 7605}, nullptr),
      m_apritori(std::move(apritori)), m_sito(sito), Image1("Image1", 0, 0, [this](int, const char *nome) {
          return std::make_unique<PictureBox>(this, nome, Posto{2880, 6300, 1080, 870}, Disegno::Zuvora);
      }) {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    disponi();
    const StatoAvvio stato = leggiStatoAvvio(Data1, cartella());
    Label5.setCaption(stato.numero);
    Label6.setCaption(stato.data);
    m_risoluzione = stato.risoluzione;
    cbAutoaccensioneFE.setChecked(stato.autoAccensione);
    Label8.setCaption(ambiente().piattaforma.nomeMacchina());
    mostraNominativo(stato.nominativo);
}

SplasModule::~SplasModule() = default;

void SplasModule::disponi() {
    IlMenu.allineaASinistra();
    alClic(IlMenu, [this] {
        setComando({});
        NascondiPagine();
    });
    for (const VoceMenu &voce : vociMenu()) {
        auto &bottone = m_menu.emplace_back(std::make_unique<Button>(
            &GroupBox3, voce.nome, voce.didascalia, Posto{LeftVoce, voce.top, LarghezzaVoce, AltezzaVoce}));
        bottone->allineaASinistra();
        alClic(*bottone, [this, voce] { premi(voce.nome, voce.titolo); });
    }
    Comando.setFontBase(ingrandito(font(), 14));
    Label9_1.setFontBase(ingrandito(font(), font().pointSizeF()));
    Label1_0.setCaption(m_sito.host());
    for (const auto &[indice, immagine] : Image1) {
        immagine->rendiCliccabile(u"Impostazione Nome del Server"_s);
        alClic(*immagine, [this] { apriNomeServer(); });
    }
    alClic(Label1_0, [this] { apriSito(); });
    alClic(PB1_0, [this] { scarica(); });
    alClic(cbAutoaccensioneFE, [this] { salvaAvvioAutomatico(); });
    IlMenu.setFocus();
}

void SplasModule::premi(const char *nome, const std::optional<QStringView> &titolo) {
    if (titolo) {
        setComando(titolo->toString());
        NascondiPagine();
    }
    if (apriPagina(nome))
        return;
    if (const auto form = m_apritori.form.find(nome); form != m_apritori.form.end())
        form->second(*this);
    else
        mostraMessaggio(ambiente(), this, u"Questa funzione non è ancora disponibile"_s,
                        u"in questa versione del modulo."_s);
    if (titolo)
        setComando({});
}

std::unique_ptr<Pagina> SplasModule::creaPagina(const QByteArray &nome) {
    if (nome == "PB1(9)")
        return std::make_unique<PaginaRisoluzioni>(*this, m_risoluzione,
                                                   [this](int misura) { m_risoluzione = misura; });
    if (nome == "PB1(10)") {
        auto pagina = std::make_unique<PaginaClient>(*this, ePrincipale(Label9_1.Caption()));
        m_client = pagina.get();
        return pagina;
    }
    if (nome == "Position")
        return std::make_unique<PaginaPosizione>(*this);
    const auto altra = m_apritori.pagine.find(nome);
    return altra == m_apritori.pagine.end() ? nullptr : altra->second(*this);
}

// Pages are made when first opened: the panel is on the screen sooner.
bool SplasModule::apriPagina(const QByteArray &nome) {
    auto pagina = m_pagine.find(nome);
    if (pagina == m_pagine.end()) {
        auto nuova = creaPagina(nome);
        if (!nuova)
            return false;
        pagina = m_pagine.emplace(nome, std::move(nuova)).first;
    }
    pagina->second->apri();
    return true;
}

void SplasModule::NascondiPagine() {
    for (const auto &[nome, pagina] : m_pagine)
        pagina->nascondi();
}

bool SplasModule::ControllaVersione() {
    const auto versione = versioneDaAggiornare(Label5.Caption());
    if (!versione)
        return false;
    AAAggiorna(ambiente(), *versione, this).mostraModale();
    return true;
}

void SplasModule::apriNomeServer() {
    NomeServer(ambiente(), this, [this](const QString &nominativo) { mostraNominativo(nominativo); }).mostraModale();
}

void SplasModule::apriSito() {
    setCursor(Qt::WaitCursor);
    const bool aperto = ambiente().piattaforma.apriNelBrowser(m_sito);
    unsetCursor();
    if (!aperto)
        mostraMessaggio(ambiente(), this, u"Impossibile aprire il browser all'indirizzo"_s, m_sito.toDisplayString());
}

void SplasModule::salvaAvvioAutomatico() {
    const bool accesa = cbAutoaccensioneFE.isChecked();
    try {
        salvaAutoAccensione(Data1, cartella(), accesa);
    } catch (...) {
        cbAutoaccensioneFE.setChecked(!accesa); // the box goes on telling what is stored
        throw;
    }
}

void SplasModule::mostraNominativo(const QString &nominativo) {
    Label9_1.setCaption(nominativo);
    applicaNominativo();
}

void SplasModule::applicaNominativo() {
    const bool principale = ePrincipale(Label9_1.Caption());
    for (const char *nome : SoloPrincipale)
        GroupBox3.findChild<Button *>(QString::fromLatin1(nome))->setEnabled(principale);
    if (m_client != nullptr)
        m_client->applicaNominativo(principale);
}

bool SplasModule::puoScaricarsi() {
    valori().RispostaUscita = RispostaResta;
    FormUscita(ambiente(), this).mostraModale();
    if (valori().RispostaUscita == RispostaResta)
        return false;
    ChiudiAltreForm();
    return true;
}

void SplasModule::ChiudiAltreForm() {
    const auto finestre = QApplication::topLevelWidgets();
    for (QWidget *finestra : finestre)
        if (auto *form = dynamic_cast<Form *>(finestra); form != nullptr && form->objectName() != objectName())
            form->scarica();
}

void SplasModule::keyPressEvent(QKeyEvent *e) {
    if (e->key() != Qt::Key_Escape)
        Form::keyPressEvent(e);
}

} // namespace zuvora
