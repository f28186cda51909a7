#include "film/Stazione.h"

#include <QNetworkReply>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int massimoRinvii = 8;
constexpr int massimoListe = 3;                   // lists that lead to lists
constexpr qint64 massimoLista = 256 * 1024;       // bytes
constexpr QByteArrayView segnoDiretta{"#EXT-X-"}; // a list of pieces of one stream: the decoder follows it itself

bool eWeb(const QUrl &indirizzo) {
    return indirizzo.isValid() && !indirizzo.host().isEmpty() &&
           (indirizzo.scheme() == "http"_L1 || indirizzo.scheme() == "https"_L1);
}

QString tipoDi(const QNetworkReply &risposta) {
    return risposta.header(QNetworkRequest::ContentTypeHeader).toString().section(u';', 0, 0).trimmed().toLower();
}

bool eLista(const QNetworkReply &risposta, const QString &tipo) {
    const QString percorso = risposta.url().path().toLower();
    return tipo.contains("mpegurl"_L1) || tipo.contains("scpls"_L1) || tipo.contains("pls+xml"_L1) ||
           percorso.endsWith(".m3u"_L1) || percorso.endsWith(".m3u8"_L1) || percorso.endsWith(".pls"_L1);
}

bool ePagina(const QString &tipo) {
    return tipo == "text/html"_L1 || tipo == "application/xhtml+xml"_L1;
}

QString motivoDi(const QNetworkReply &risposta) {
    const int stato = risposta.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (stato >= 400)
        return u"Il server ha risposto che la stazione non c'è (errore %1)."_s.arg(stato);
    switch (risposta.error()) {
    case QNetworkReply::HostNotFoundError:
        return u"Il server %1 non esiste o la rete non è collegata."_s.arg(risposta.url().host());
    case QNetworkReply::ConnectionRefusedError:
        return u"Il server %1 rifiuta il collegamento."_s.arg(risposta.url().host());
    case QNetworkReply::SslHandshakeFailedError:
        return u"Il server %1 non ha un certificato valido."_s.arg(risposta.url().host());
    case QNetworkReply::TooManyRedirectsError:
        return u"L'indirizzo rimanda ogni volta a un altro indirizzo."_s;
    case QNetworkReply::InsecureRedirectError:
        return u"L'indirizzo rimanda fuori dal web sicuro."_s;
    default:
        return u"Il server %1 non è raggiungibile."_s.arg(risposta.url().host());
    }
}

} // namespace

Stazione::Stazione(QObject *padre) : QObject(padre) {
    m_rete.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
}

void Stazione::cerca(const QUrl &indirizzo) {
    m_liste = 0;
    chiedi(indirizzo);
}

void Stazione::chiedi(const QUrl &indirizzo) {
    if (!eWeb(indirizzo)) {
        Q_EMIT mancato(GuastoLettore::NonRaggiunto,
                       u"L'indirizzo non è quello di una stazione: deve cominciare con http:// o https://."_s);
        return;
    }
    QNetworkRequest richiesta(indirizzo);
    richiesta.setMaximumRedirectsAllowed(massimoRinvii);
    richiesta.setHeader(QNetworkRequest::UserAgentHeader, u"Zuvora"_s);
    QNetworkReply *risposta = m_rete.get(richiesta);
    connect(risposta, &QNetworkReply::metaDataChanged, this, [this, risposta] { esamina(*risposta); });
    connect(risposta, &QNetworkReply::finished, this, [this, risposta] { concludi(*risposta); });
}

// The first lines of the answer are here. A station never ends its answer: they must do.
void Stazione::esamina(QNetworkReply &risposta) {
    const int stato = risposta.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (stato < 200 || stato >= 300)
        return; // a redirection goes on, an error ends the answer
    const QString tipo = tipoDi(risposta);
    const QUrl indirizzo = risposta.url();
    if (ePagina(tipo)) {
        lascia(risposta);
        Q_EMIT mancato(GuastoLettore::PaginaWeb, u"L'indirizzo è quello di una pagina web, non di una stazione."_s);
    } else if (eLista(risposta, tipo)) {
        connect(&risposta, &QNetworkReply::readyRead, this, [this, r = &risposta] {
            if (r->bytesAvailable() > massimoLista)
                leggiLista(*r);
        });
    } else {
        lascia(risposta);
        Q_EMIT trovato(indirizzo);
    }
}

void Stazione::leggiLista(QNetworkReply &risposta) {
    const QUrl indirizzo = risposta.url();
    const QByteArray lista = risposta.read(massimoLista);
    lascia(risposta);
    if (lista.contains(segnoDiretta)) {
        Q_EMIT trovato(indirizzo);
        return;
    }
    const QUrl voce = primaVoce(lista, indirizzo);
    if (voce.isEmpty() || ++m_liste > massimoListe)
        Q_EMIT mancato(GuastoLettore::Illeggibile,
                       u"La lista di stazioni all'indirizzo dato non ne contiene alcuna."_s);
    else
        chiedi(voce);
}

void Stazione::concludi(QNetworkReply &risposta) {
    if (risposta.error() == QNetworkReply::NoError) {
        leggiLista(risposta); // only a list is read to its end
        return;
    }
    const QString motivo = motivoDi(risposta);
    const QUrl indirizzo = risposta.url();
    // Old stations answer in a form of their own, which the decoder knows.
    const bool altraLingua = risposta.error() == QNetworkReply::ProtocolFailure ||
                             risposta.error() == QNetworkReply::UnknownNetworkError ||
                             risposta.error() == QNetworkReply::RemoteHostClosedError;
    lascia(risposta);
    if (altraLingua)
        Q_EMIT trovato(indirizzo);
    else
        Q_EMIT mancato(GuastoLettore::NonRaggiunto, motivo);
}

void Stazione::lascia(QNetworkReply &risposta) {
    risposta.disconnect(this);
    risposta.abort();
    risposta.deleteLater();
}

QUrl Stazione::primaVoce(const QByteArray &lista, const QUrl &base) {
    static const QRegularExpression voceNumerata(u"^file\\d+\\s*="_s, QRegularExpression::CaseInsensitiveOption);
    const bool numerata = lista.trimmed().toLower().startsWith("[playlist]");
    const auto righe = QString::fromUtf8(lista).split(u'\n');
    for (const QString &intera : righe) {
        QString riga = intera.trimmed();
        if (numerata) {
            const auto trovata = voceNumerata.match(riga);
            if (!trovata.hasMatch())
                continue;
            riga = riga.mid(trovata.capturedLength()).trimmed();
        }
        if (riga.isEmpty() || riga.startsWith(u'#'))
            continue;
        QUrl voce = base.resolved(QUrl(riga));
        if (eWeb(voce))
            return voce;
    }
    return {};
}

} // namespace zuvora
