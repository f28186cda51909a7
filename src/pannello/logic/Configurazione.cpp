#include "pannello/logic/Configurazione.h"

#include "shell/logic/Risoluzioni.h"
#include "shell/store/Data.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int OltreIlPrimo = 20; // twips beyond the first screen's right edge

// The stored number of a resolution, 0 for any other value.
int risoluzioneDi(const Valore &v) {
    for (int misura = 1; misura <= int(Risoluzioni.size()); ++misura)
        if (numeroDi(v) == misura)
            return misura;
    return 0;
}

} // namespace

StatoAvvio leggiStatoAvvio(Data &dato, const QString &cartella) {
    StatoAvvio stato;
    Recordset &versione = apri(dato, cartella, u"Versione"_s);
    stato.numero = testoDi(versione[u"Numero"].Value(), u"n.d."_s);
    stato.data = testoDi(versione[u"Data"].Value(), u"n.d."_s);
    Recordset &riga = apri(dato, cartella, u"Configurazione"_s);
    stato.risoluzione = risoluzioneDi(riga[u"MisuraFormWH"].Value());
    stato.nominativo = testoDi(riga[u"Nominativo"].Value(), u"Non definito"_s);
    stato.autoAccensione = numeroDi(riga[u"TempoChiamata"].Value()) == 1;
    stato.usaDinDon = eVero(riga[u"PlayDinDon"].Value());
    return stato;
}

bool ePrincipale(QStringView nominativo) {
    return nominativo.toString().toUpper() == u"SERVER1";
}

QString leggiNominativo(Data &dato, const QString &cartella) {
    return testoDi(apri(dato, cartella, u"configurazione"_s)[u"Nominativo"].Value(), {});
}

void salvaNominativo(Data &dato, const QString &cartella, const QString &nominativo) {
    Recordset &riga = apri(dato, cartella, u"configurazione"_s);
    riga.Edit();
    riga[u"Nominativo"].SetValue(nominativo);
    riga.Update();
}

void salvaAutoAccensione(Data &dato, const QString &cartella, bool accesa) {
    Recordset &riga = apri(dato, cartella, u"Configurazione"_s);
    riga.Edit();
    riga[u"TempoChiamata"].SetValue(accesa ? 1 : 2);
    riga.Update();
}

void salvaRisoluzione(Data &dato, const QString &cartella, int misura) {
    Recordset &riga = apri(dato, cartella, u"Configurazione"_s);
    riga.Edit();
    riga[u"MisuraFormWH"].SetValue(misura);
    riga.Update();
}

Schermo leggiSchermo(Data &dato, const QString &cartella) {
    const Valore sinistra = apri(dato, cartella, u"Configurazione"_s)[u"MisuraFormLeft"].Value();
    return numeroDi(sinistra) == 0 ? Schermo::Primo : Schermo::Secondo;
}

void salvaSchermo(Data &dato, const QString &cartella, Schermo schermo, int larghezzaSchermoTwips) {
    Recordset &riga = apri(dato, cartella, u"Configurazione"_s);
    riga.Edit();
    riga[u"MisuraFormLeft"].SetValue(schermo == Schermo::Primo ? 0 : larghezzaSchermoTwips + OltreIlPrimo);
    riga.Update();
}

DatiServer leggiDatiServer(Data &dato, const QString &cartella) {
    Recordset &riga = apri(dato, cartella, u"Configurazione"_s);
    DatiServer server;
    server.porta = testoDi(riga[u"RHPort"].Value(), {});
    server.tipo = numeroDi(riga[u"ModoClient"].Value()) == 1 ? TipoChiamata::Automatica : TipoChiamata::Selettiva;
    return server;
}

void salvaDatiServer(Data &dato, const QString &cartella, const DatiServer &server) {
    Recordset &riga = apri(dato, cartella, u"configurazione"_s);
    riga.Edit();
    if (server.tipo)
        riga[u"ModoClient"].SetValue(static_cast<int>(*server.tipo));
    riga[u"IPServer"].SetValue(server.indirizzo);
    riga[u"ServerName"].SetValue(server.nome);
    riga[u"RHPort"].SetValue(server.porta);
    riga.Update();
}

} // namespace zuvora
