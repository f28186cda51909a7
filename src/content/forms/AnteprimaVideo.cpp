#include "content/forms/AnteprimaVideo.h"

namespace zuvora {

AnteprimaVideo::AnteprimaVideo(const Ambiente &contesto, const QString &percorso, QWidget *padre)
    : Form(contesto, "AnteprimaVideo", "Anteprima Video", {9735, 7245}, padre) {
    MP1.setFile(percorso);
    MP1.avvia();
}

} // namespace zuvora
