#include "shell/host/AnteprimaImmagini.h"

#include <QFileInfo>

namespace zuvora {

AnteprimaImmagini::AnteprimaImmagini(const Ambiente &contesto, const QString &percorso, QWidget *padre)
    : Form(contesto, "AnteprimaImmagini", "Anteprima Immagini", {9615, 6615}, padre) {
    Image1.setAccessibleName(QFileInfo(percorso).fileName());
    Image1.mostra(percorso);
}

} // namespace zuvora
