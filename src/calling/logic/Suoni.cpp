#include "calling/logic/Suoni.h"

#include "shell/store/Data.h"
#include "shell/store/Riga.h"
#include "shell/store/Scrittura.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qsizetype unita = 2; // characters of drive and colon

const QString &configurazione() {
    static const QString nome = u"Configurazione"_s;
    return nome;
}

} // namespace

QString percorsoSuono(QStringView scelto, QStringView macchina) {
    return u"\\\\"_s + macchina.toString() + scelto.mid(unita).toString();
}

void aggiungiSuono(Recordset &suoni, const QString &percorso) {
    scriviRecord(suoni, Record::Nuovo, {{u"dindon", percorso}});
}

QString suonoCorrente(Recordset &suoni) {
    return testoDi(suoni[u"DinDon"].Value(), {});
}

void salvaSuonoPredefinito(const QString &cartella, const QString &percorso) {
    scriviRiga(cartella, configurazione(), {{u"dindon", percorso}});
}

bool leggiUsoSuono(const QString &cartella) {
    return leggiRiga(cartella, configurazione()).vero(u"PlayDinDon");
}

void salvaUsoSuono(const QString &cartella, bool usato) {
    scriviRiga(cartella, configurazione(), {{u"PlayDinDon", usato}});
}

} // namespace zuvora
