#include "shell/host/Browser.h"

#include "shell/host/ComponenteWeb.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/IndirizzoWeb.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QStackedLayout>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int massimoIndirizzo = 300; // characters shown of an address
constexpr int margineAvviso = 12;     // pixels

QString perLaLettura(const QString &indirizzo) {
    return indirizzo.size() <= massimoIndirizzo ? indirizzo : indirizzo.left(massimoIndirizzo) + u'…';
}

QString testoIndirizzo(const QString &indirizzo) {
    if (indirizzo.trimmed().isEmpty())
        return u"Nessuna pagina da mostrare: l'indirizzo non è stato impostato."_s;
    return u"L'indirizzo non è quello di una pagina web:\n\n%1\n\nUn indirizzo valido comincia con http:// o https://, "
           "per esempio https://www.comune.example/notizie"_s.arg(perLaLettura(indirizzo.trimmed()));
}

QString testoEsito(EsitoWeb esito, const QUrl &indirizzo) {
    const QString quale = perLaLettura(indirizzo.toDisplayString());
    switch (esito) {
    case EsitoWeb::CertificatoRifiutato:
        return u"La pagina non viene mostrata, perché il suo server non ha un certificato valido:\n\n%1\n\nControllare "
               "che l'indirizzo sia scritto bene e che data e ora del computer siano giuste."_s.arg(quale);
    case EsitoWeb::NonAmmessa:
        return u"L'indirizzo non porta a una pagina web che si possa mostrare qui:\n\n%1\n\nSono ammesse le pagine "
               u"http "
               "e https; i file da scaricare e quelli del computer no."_s.arg(quale);
    case EsitoWeb::ChiedePassword:
        return u"La pagina chiede un nome utente e una password, che qui non si possono dare:\n\n%1\n\nImpostare "
               "l'indirizzo di una pagina aperta a tutti."_s.arg(quale);
    case EsitoWeb::ProxyChiedePassword:
        return u"La pagina non viene mostrata, perché il proxy della rete chiede un nome utente e una password, che "
               "qui non si possono dare:\n\n%1\n\nChiedere a chi amministra la rete."_s.arg(quale);
    case EsitoWeb::TroppaMemoria:
        return u"La pagina è stata chiusa, perché occupava troppa memoria:\n\n%1"_s.arg(quale);
    case EsitoWeb::Interrotta:
        return u"La pagina si è chiusa per un errore:\n\n%1\n\nPer riprovare chiudere la finestra e riaprirla."_s.arg(
            quale);
    default:
        return u"La pagina non è raggiungibile:\n\n%1\n\nControllare che l'indirizzo sia scritto bene e che il "
               u"computer sia "
               "collegato alla rete, poi chiudere la finestra e riaprirla."_s.arg(quale);
    }
}

} // namespace

Browser::Browser(QWidget *padre, const char *nome, const Posto &posto, const Piattaforma &piattaforma)
    : Controllo(padre, nome, posto), m_piattaforma(piattaforma), m_pila(new QStackedLayout(this)),
      m_avviso(new QPlainTextEdit(this)) {
    m_avviso->setReadOnly(true);
    m_avviso->setTabChangesFocus(true);
    m_avviso->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_avviso->document()->setDocumentMargin(margineAvviso);
    m_avviso->setAccessibleName(u"Avviso"_s);
    m_avviso->viewport()->installEventFilter(this);
    m_pila->setSizeConstraint(QLayout::SetNoConstraint);
    m_pila->addWidget(m_avviso);
    // A page that has the focus keeps Esc to itself: it must close the window from there too.
    auto *chiudi = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    chiudi->setContext(Qt::WidgetWithChildrenShortcut);
    connect(chiudi, &QShortcut::activated, this, [this] { window()->close(); });
}

Browser::~Browser() = default;

void Browser::vai(const QString &indirizzo) {
    if (const auto url = indirizzoWeb(indirizzo))
        chiedi({*url, std::nullopt});
    else
        rinuncia(testoIndirizzo(indirizzo));
}

void Browser::mostraHtml(const QString &html, const QUrl &base) {
    chiedi({base, html});
}

QString Browser::avviso() const {
    return m_pila->currentWidget() == m_avviso ? m_avviso->toPlainText() : QString();
}

void Browser::chiedi(Richiesta richiesta) {
    congeda();
    m_richiesta = std::move(richiesta);
    mostraAvviso(u"Caricamento della pagina in corso…"_s);
}

// Loading the component holds the program up for a moment: the form must stand on the screen by then.
bool Browser::eventFilter(QObject *oggetto, QEvent *evento) {
    if (evento->type() == QEvent::Paint && m_richiesta && !m_creazione) {
        m_creazione = true;
        QTimer::singleShot(0, this, &Browser::creaVista);
    }
    return Controllo::eventFilter(oggetto, evento);
}

void Browser::creaVista() {
    m_creazione = false;
    if (!m_richiesta)
        return;
    const Richiesta richiesta = *std::exchange(m_richiesta, std::nullopt);
    EsitoComponenteWeb esito = creaVistaWeb(m_piattaforma.cartellaEseguibile(), this);
    if (!esito.vista) {
        rinuncia(esito.motivo);
        return;
    }
    m_vista = std::move(esito.vista);
    // Off the event loop: what is done about the news may end the view that brings them.
    m_vista->setAlCambio([this, pagina = m_pagina](EsitoWeb e, const QUrl &indirizzo) {
        const auto notizia = [this, pagina, e, indirizzo] {
            if (pagina == m_pagina)
                ricevi(e, indirizzo);
        };
        QMetaObject::invokeMethod(this, notizia, Qt::QueuedConnection);
    });
    m_pila->addWidget(m_vista->widget());
    if (richiesta.html)
        m_vista->mostraHtml(*richiesta.html, richiesta.indirizzo);
    else
        m_vista->vai(richiesta.indirizzo);
}

void Browser::ricevi(EsitoWeb esito, const QUrl &indirizzo) {
    if (esito != EsitoWeb::Ricevuta && esito != EsitoWeb::Mostrata) {
        rinuncia(testoEsito(esito, indirizzo));
        return;
    }
    m_pila->setCurrentWidget(m_vista->widget());
    if (esito == EsitoWeb::Mostrata)
        Q_EMIT terminato(true);
}

void Browser::congeda() {
    ++m_pagina;
    m_richiesta.reset();
    m_vista.reset();
}

void Browser::mostraAvviso(const QString &testo) {
    m_avviso->setPlainText(testo);
    m_avviso->viewport()->update();
    m_pila->setCurrentWidget(m_avviso);
}

void Browser::rinuncia(const QString &testo) {
    congeda();
    mostraAvviso(testo);
    Q_EMIT terminato(false);
}

} // namespace zuvora
