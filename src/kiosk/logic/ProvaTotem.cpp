#include "kiosk/logic/ProvaTotem.h"

#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool totemRaggiungibile(const QString &archivio) {
    try {
        Database totem = Database::OpenDatabase(archivio);
        totem.Execute(u"Select * from [DatiDaStampareIMP]"_s);
    } catch (const EngineError &e) {
        return e.numero() != Errore::PercorsoNonValido && e.numero() != Errore::FileNonTrovato &&
               e.numero() != Errore::PercorsoNonTrovato;
    }
    return true;
}

} // namespace zuvora
