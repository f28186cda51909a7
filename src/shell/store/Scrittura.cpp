#include "shell/store/Scrittura.h"

#include "shell/store/Recordset.h"

namespace zuvora {

void scriviRecord(Recordset &elenco, Record quale, const QList<Assegno> &valori) {
    if (quale == Record::Nuovo)
        elenco.AddNew();
    else
        elenco.Edit();
    try {
        for (const auto &[colonna, valore] : valori)
            elenco[colonna].SetValue(valore);
        elenco.Update();
    } catch (...) {
        elenco.CancelUpdate();
        throw;
    }
}

} // namespace zuvora
