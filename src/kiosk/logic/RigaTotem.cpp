#include "kiosk/logic/RigaTotem.h"

#include "kiosk/logic/ArchivioTotem.h"
#include "kiosk/logic/Disposizione.h"
#include "shell/store/Database.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The index of the stored screen as text; nothing for Null and for any other value.
QString schermoDi(const Valore &valore) {
    for (std::size_t i = 0; i < schermiTotem.size(); ++i)
        if (!eNull(valore) && testoDi(valore, {}) == QString::number(i))
            return QString::number(i);
    return {};
}

QString testoMostrato(const ColonnaTotem &colonna, const Valore &valore) {
    switch (colonna.genere) {
    case GenereTotem::Scelta:
        return schermoDi(valore);
    case GenereTotem::Logico:
        return eVero(valore) ? u"1"_s : u"0"_s;
    case GenereTotem::Misura:
        return testoDi(valore, colonna.primo.toString());
    case GenereTotem::Testo:
        break;
    }
    return testoDi(valore, u""_s);
}

Valore valoreDa(const ColonnaTotem &colonna, const QString &testo) {
    switch (colonna.genere) {
    case GenereTotem::Scelta:
        return testo.toInt();
    case GenereTotem::Logico:
        return testo == u"1"_s;
    case GenereTotem::Misura:
    case GenereTotem::Testo:
        break;
    }
    return testo;
}

} // namespace

QStringList serviziAttivi(Data &dato, const QString &cartella) {
    Recordset &righe = apri(dato, cartella, u"Select [Servizio] from Servizi where [ServizioAttivo]=true"_s);
    QStringList nomi;
    for (; !righe.Eof(); righe.MoveNext())
        nomi << testoDi(righe[u"Servizio"].Value(), u""_s);
    return nomi;
}

RigaTotem::RigaTotem(QString cartella) : m_cartella(std::move(cartella)) {}

void RigaTotem::carica() {
    caricaInizio();
    if (caricaServizi())
        caricaResto();
}

void RigaTotem::caricaInizio() {
    const Riga riga = leggiRiga(Data8, m_cartella, tabellaTotem.toString());
    mostra(CampoTotem::RisoluzioneTotem, riga);
    mostra(CampoTotem::PercorsoReteTotem, riga);
}

bool RigaTotem::caricaServizi() {
    try {
        m_servizi = serviziAttivi(Data8, m_cartella);
    } catch (const EngineError &e) {
        m_guasto = e;
    }
    return !m_servizi.isEmpty();
}

void RigaTotem::caricaResto() {
    for (int giro = 0; giro < 2; ++giro) {
        std::optional<Riga> riga;
        try {
            riga = leggiRiga(Data8, m_cartella, tabellaTotem.toString());
        } catch (const EngineError &e) {
            m_guasto = e;
            // The box is emptied, the row keeps its path: what a failure took away is nothing that the user decided.
            if (percorsoMancante(e.numero())) {
                m_contenuto[CampoTotem::PercorsoReteTotem].clear();
                m_mostrati.reset(indice(CampoTotem::PercorsoReteTotem));
            }
            return;
        }
        try {
            for (std::size_t i = indice(CampoTotem::SfondoTotem); i < indice(CampoTotem::TestoVisibile); ++i)
                mostra(static_cast<CampoTotem>(i), *riga);
            if (mostraVisibilita(*riga))
                return;
            AggiungiColonneTotem(m_cartella);
        } catch (const EngineError &e) {
            m_guasto = e;
            return;
        }
    }
}

// False when the database is older than these columns.
bool RigaTotem::mostraVisibilita(const Riga &riga) {
    try {
        mostra(CampoTotem::TestoVisibile, riga);
        mostra(CampoTotem::DataVisibile, riga);
        return true;
    } catch (const EngineError &e) {
        if (e.numero() != Errore::ColonnaNonTrovata)
            throw;
        return false;
    }
}

void RigaTotem::mostra(CampoTotem campo, const Riga &riga) {
    const ColonnaTotem &questa = colonna(campo);
    m_contenuto[campo] = testoMostrato(questa, riga[questa.nome]);
    m_mostrati.set(indice(campo));
}

bool RigaTotem::daScrivere(CampoTotem campo, const ContenutoTotem &adesso) const {
    if (campo == CampoTotem::RisoluzioneTotem)
        return !adesso[campo].isEmpty();
    return m_mostrati.test(indice(campo)) || adesso[campo] != m_contenuto[campo];
}

void RigaTotem::salva(const ContenutoTotem &adesso) {
    QList<CampoTotem> resto{CampoTotem::RisoluzioneTotem};
    for (std::size_t i = indice(CampoTotem::SfondoTotem); i < colonneTotem.size(); ++i)
        resto << static_cast<CampoTotem>(i);
    scrivi(adesso, {CampoTotem::PercorsoReteTotem, CampoTotem::RisoluzioneTotem});
    scrivi(adesso, resto);
}

void RigaTotem::scrivi(const ContenutoTotem &adesso, QList<CampoTotem> campi) {
    campi.removeIf([&](CampoTotem campo) { return !daScrivere(campo, adesso); });
    QList<Assegno> valori;
    for (const CampoTotem campo : std::as_const(campi))
        valori.append({colonna(campo).nome, valoreDa(colonna(campo), adesso[campo])});
    if (valori.isEmpty())
        return;
    scriviRiga(m_cartella, tabellaTotem.toString(), valori);
    for (const CampoTotem campo : std::as_const(campi))
        m_mostrati.set(indice(campo));
}

void AggiungiColonneTotem(const QString &cartella) {
    Database archivio = Database::OpenDatabase(percorsoArchivio(cartella));
    auto campi = archivio.TableDefs().Item(tabellaTotem.toString()).Fields();
    for (const CampoTotem campo : {CampoTotem::TestoVisibile, CampoTotem::DataVisibile}) {
        try {
            campi.Append({colonna(campo).nome.toString(), TipoCampo::Booleano});
        } catch (const EngineError &e) {
            if (e.numero() != Errore::ColonnaGiaPresente)
                throw;
        }
    }
    archivio.Close();
}

} // namespace zuvora
