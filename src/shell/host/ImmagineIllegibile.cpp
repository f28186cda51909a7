#include "shell/host/ImmagineIllegibile.h"

#include "shell/host/MsgForm.h"
#include "shell/immagini/LetturaImmagine.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool avvisaSeIllegibile(const Ambiente &ambiente, const QString &percorso, QWidget *padre) {
    if (pareImmagine(percorso))
        return false;
    mostraMessaggio(ambiente, padre, u"Impossibile caricare l'immagine scelta !"_s,
                    QFileInfo::exists(percorso) ? u"Il file non è un'immagine leggibile."_s : u"File non trovato."_s);
    return true;
}

} // namespace zuvora
