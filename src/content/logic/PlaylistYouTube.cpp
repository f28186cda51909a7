#include "content/logic/PlaylistYouTube.h"

#include "shell/store/Data.h"
#include "shell/store/Riga.h"
#include "shell/store/Scrittura.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool titoloPresente(const QString &cartella, const QString &titolo) {
    Data dato;
    Recordset &righe = apri(dato, cartella, u"Select * from [VideoYT]"_s);
    QString citato = titolo;
    citato.replace(u"'"_s, u"''"_s); // an apostrophe is a letter of the title, not the end of the criterion
    righe.FindFirst(u"[Titolo]like'"_s + citato + u"'"_s);
    return !righe.NoMatch();
}

void aggiungiYouTube(Recordset &elenco, const QString &titolo, const QString &url) {
    scriviRecord(elenco, Record::Nuovo, {{u"Titolo", titolo}, {u"Url", url}});
}

void salvaPredefinitaYouTube(const QString &cartella, const QString &url) {
    scriviRiga(cartella, u"Configurazione"_s, {{u"plyt", url}});
}

} // namespace zuvora
