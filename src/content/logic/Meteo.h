#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// The towns, in order.
inline constexpr QStringView elencoComuni = u"Select * from ComuniMeteo order by [comune]";
// The towns whose name begins with the text; an apostrophe in it matches any character.
QString sorgenteComuni(const QString &cercato);

inline constexpr QStringView senzaComune = u"0000";

// The weather box of a town at the service of `host` (scheme and host, without a trailing slash).
class IndirizzoMeteo {
public:
    explicit IndirizzoMeteo(const QString &host);
    QString di(const QString &codice) const { return m_testa + codice + m_coda; }

private:
    QString m_testa;
    QString m_coda;
};

struct MeteoScelto {
    std::optional<QString> meteo; // the whole address; nothing for Null
    QString MeteoCode;            // "0000" for Null, and without an address
};
MeteoScelto leggiMeteo(const QString &cartella);

// A code whose leading number is 0 is none and is not stored.
bool eCodiceComune(QStringView codice);
void salvaMeteo(const QString &cartella, const IndirizzoMeteo &indirizzo, const QString &codice);

} // namespace zuvora
