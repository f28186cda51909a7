#include "content/forms/ImpostaVideo.h"

#include "content/forms/AnteprimaVideo.h"

namespace zuvora {

ImpostaVideo::ImpostaVideo(const Ambiente &ambiente_, QWidget *padre, const Percorsi &percorsi)
    : FormPlaylist(ambiente_, AspettoVideo, padre, percorsi) {
    alClic(PushButton1, [this] { anteprimaCartella(); });
    alClic(PushButton2, [this] { anteprimaPlaylist(); });
    ElencaPlaylist();
}

void ImpostaVideo::anteprimaCartella() {
    if (const QString percorso = File1.percorso(File1.ListIndex()); !percorso.isEmpty())
        AnteprimaVideo(ambiente(), percorso, this).mostraModale();
}

void ImpostaVideo::anteprimaPlaylist() {
    if (haVoci())
        AnteprimaVideo(ambiente(), percorsi().nativo(voceScelta()).value_or(voceScelta()), this).mostraModale();
}

} // namespace zuvora
