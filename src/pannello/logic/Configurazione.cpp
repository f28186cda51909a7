#include "pannello/logic/Configurazione.h"

#include "shell/logic/Risoluzioni.h"
#include "shell/store/Data.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString tabella = u"Configurazione"_s;
constexpr int oltreIlPrimo = 20; // twips beyond the first screen's right edge

// The stored number of a resolution, 0 for any other value.
int risoluzioneDi(const Valore &v) {
    for (int misura = 1; misura <= int(risoluzioni.size()); ++misura)
        if (numeroDi(v) == misura)
            return misura;
    return 0;
}

} // namespace

StatoAvvio leggiStatoAvvio(const QString &cartella) {
    StatoAvvio stato;
    Data dato;
    const Riga versione = leggiRiga(dato, cartella, u"Versione"_s);
    stato.numero = versione.testo(u"Numero", u"n.d."_s);
    stato.data = versione.testo(u"Data", u"n.d."_s);
    const Riga riga = leggiRiga(dato, cartella, tabella);
    stato.risoluzione = risoluzioneDi(riga[u"MisuraFormWH"]);
    stato.nominativo = riga.testo(u"Nominativo", u"Non definito"_s);
    stato.autoAccensione = numeroDi(riga[u"TempoChiamata"]) == 1;
    return stato;
}

bool ePrincipale(QStringView nominativo) {
    return nominativo.toString().toUpper() == u"SERVER1";
}

QString leggiNominativo(const QString &cartella) {
    return leggiRiga(cartella, tabella).testo(u"Nominativo");
}

void salvaNominativo(const QString &cartella, const QString &nominativo) {
    scriviRiga(cartella, tabella, {{u"Nominativo", nominativo}});
}

void salvaAutoAccensione(const QString &cartella, bool accesa) {
    scriviRiga(cartella, tabella, {{u"TempoChiamata", accesa ? 1 : 2}});
}

void salvaRisoluzione(const QString &cartella, int misura) {
    scriviRiga(cartella, tabella, {{u"MisuraFormWH", misura}});
}

Schermo leggiSchermo(const QString &cartella) {
    return numeroDi(leggiRiga(cartella, tabella)[u"MisuraFormLeft"]) == 0 ? Schermo::Primo : Schermo::Secondo;
}

void salvaSchermo(const QString &cartella, Schermo schermo, int larghezzaSchermoTwips) {
    const int sinistra = schermo == Schermo::Primo ? 0 : larghezzaSchermoTwips + oltreIlPrimo;
    scriviRiga(cartella, tabella, {{u"MisuraFormLeft", sinistra}});
}

DatiServer leggiDatiServer(const QString &cartella) {
    const Riga riga = leggiRiga(cartella, tabella);
    DatiServer server;
    server.porta = riga.testo(u"RHPort");
    server.tipo = numeroDi(riga[u"ModoClient"]) == 1 ? TipoChiamata::Automatica : TipoChiamata::Selettiva;
    return server;
}

void salvaDatiServer(const QString &cartella, const DatiServer &server) {
    QList<Assegno> valori;
    if (server.tipo)
        valori += {u"ModoClient", static_cast<int>(*server.tipo)};
    valori += {u"IPServer", server.indirizzo};
    valori += {u"ServerName", server.nome};
    valori += {u"RHPort", server.porta};
    scriviRiga(cartella, tabella, valori);
}

} // namespace zuvora
