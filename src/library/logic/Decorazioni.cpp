#include "library/logic/Decorazioni.h"

#include "designer/logic/DisplayLayout.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/Recordset.h"
#include "shell/store/Scrittura.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QString sorgenteDecorazioni(int TipoCategoria) {
    return u"Select * from Decorazioni where [Tipo]="_s + QString::number(TipoCategoria) + u" order by [file]"_s;
}

QString cartellaDecorazioni(const QString &PercorsoApplicazione, int indice) {
    const CategoriaDecorazioni &categoria = categorieDecorazioni.at(static_cast<std::size_t>(indice));
    return percorsoIn(PercorsoApplicazione, categoria.cartella) + QDir::separator();
}

QString percorsoDecorazione(const QString &PercorsoApplicazione, int indice, const QString &File) {
    return cartellaDecorazioni(PercorsoApplicazione, indice) + File;
}

bool ePreimpostata(const Valore &ID) {
    bool numero = false;
    const qlonglong id = ID.toLongLong(&numero);
    return !numero || id <= ultimaPreimpostata;
}

QString nomeDecorazione(int i) {
    return u"Decorazione "_s + QString::number(i);
}

int indiceDecorazione(const QString &Label1) {
    for (int i = 1; i <= numeroDecorazioni; ++i)
        if (Label1 == nomeDecorazione(i))
            return i;
    return 0;
}

Valore aggiungiDecorazione(Recordset &decorazioni, const QString &FileScelto, int TipoCategoria) {
    scriviRecord(decorazioni, Record::Nuovo, {{u"File", FileScelto}, {u"Tipo", qlonglong{TipoCategoria}}});
    decorazioni.MoveLast(); // where a new record goes
    return decorazioni[u"ID"].Value();
}

} // namespace zuvora
