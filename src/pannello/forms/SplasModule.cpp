#include "pannello/forms/SplasModule.h"

#include "pannello/forms/AAAggiorna.h"
#include "pannello/forms/FormUscita.h"
#include "pannello/forms/NomeServer.h"
#include "pannello/logic/Versione.h"
#include "shell/host/Piattaforma.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int larghezzaVoce = 2295; // twips
constexpr int altezzaVoce = 300;
constexpr int leftVoce = 120;

QFont ingrandito(const QFont &base, double punti) {
    QFont font = base;
    font.setPointSizeF(punti);
    font.setBold(true);
    return font;
}

} // namespace

SplasModule::SplasModule(const Ambiente &contesto, std::vector<VoceMenu> voci, const QUrl &sito)
    : Form(contesto, "SplasModule", "Zuvora  -  Modulo di Impostazione", {8685, 7605}, nullptr),
      m_voci(std::move(voci)), m_sito(sito), Image1("Image1", 0, 0, [this](int, const char *nome) {
          return std::make_unique<PictureBox>(this, nome, Posto{2880, 6300, 1080, 870}, Disegno::Zuvora);
      }) {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    disponi();
    const StatoAvvio stato = leggiStatoAvvio(cartella());
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
    for (const VoceMenu &voce : m_voci) {
        auto &bottone = m_menu.emplace_back(std::make_unique<Button>(
            &GroupBox3, voce.nome, voce.didascalia, Posto{leftVoce, voce.top, larghezzaVoce, altezzaVoce}));
        bottone->allineaASinistra();
        bottone->setDisegno(voce.disegno);
        alClic(*bottone, [this, &voce] { premi(voce); });
    }
    QList<Button *> menu{&IlMenu};
    for (const auto &bottone : m_menu)
        menu << bottone.get();
    condensaInsieme(menu);
    Comando.setFontBase(ingrandito(font(), 14));
    Label9_1.setAbbrevia(true);
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

void SplasModule::premi(const VoceMenu &voce) {
    if (voce.titolo) {
        setComando(voce.titolo->toString());
        NascondiPagine();
    }
    try {
        apri(voce);
    } catch (...) {
        if (voce.titolo)
            setComando({}); // no title over a page that isn't there
        throw;
    }
}

void SplasModule::apri(const VoceMenu &voce) {
    if (const auto *crea = std::get_if<ApriPagina>(&voce.apri)) {
        apriPagina(voce.nome, *crea);
        return;
    }
    std::get<ApriForm>(voce.apri)(apertura());
    if (voce.titolo)
        setComando({});
}

Apertura SplasModule::apertura() {
    return {ambiente(),
            this,
            m_risoluzione,
            ePrincipale(Label9_1.Caption()),
            [this](int risoluzione) { m_risoluzione = risoluzione; },
            [this] { apriSito(); }};
}

// Pages are made when first opened: the panel is on the screen sooner.
void SplasModule::apriPagina(const char *nome, const ApriPagina &crea) {
    auto pagina = m_pagine.find(nome);
    if (pagina == m_pagine.end())
        pagina = m_pagine.emplace(nome, crea(apertura())).first;
    pagina->second->apri();
    GroupBox3.findChild<Button *>(QString::fromLatin1(nome))->setSegnato(true);
}

void SplasModule::NascondiPagine() {
    for (const auto &[nome, pagina] : m_pagine)
        pagina->nascondi();
    for (const auto &bottone : m_menu)
        bottone->setSegnato(false);
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
        avvisa(u"Impossibile aprire il browser all'indirizzo"_s, m_sito.toDisplayString());
}

void SplasModule::salvaAvvioAutomatico() {
    const bool accesa = cbAutoaccensioneFE.isChecked();
    try {
        salvaAutoAccensione(cartella(), accesa);
    } catch (...) {
        cbAutoaccensioneFE.setChecked(!accesa); // the box goes on telling what is stored
        throw;
    }
    cbAutoaccensioneFE.spunta();
}

void SplasModule::mostraNominativo(const QString &nominativo) {
    Label9_1.setCaption(nominativo);
    applicaNominativo();
}

void SplasModule::applicaNominativo() {
    const bool principale = ePrincipale(Label9_1.Caption());
    for (std::size_t i = 0; i < m_voci.size(); ++i)
        m_menu[i]->abilita(principale || !m_voci[i].soloPrincipale,
                           u"Riservato all'installazione principale (nome SERVER1)."_s);
    for (const auto &[nome, pagina] : m_pagine)
        pagina->applicaPrincipale(principale);
}

bool SplasModule::puoScaricarsi() {
    FormUscita uscita(ambiente(), this);
    uscita.mostraModale();
    if (uscita.risposta() == RispostaUscita::Resta)
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
