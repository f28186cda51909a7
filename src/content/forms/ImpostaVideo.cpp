#include "content/forms/ImpostaVideo.h"

#include "content/forms/AnteprimaVideo.h"

namespace zuvora {

ImpostaVideo::ImpostaVideo(const Ambiente &contesto, QWidget *padre) : FormPlaylist(contesto, aspettoVideo, padre) {
    alClic(PushButton1, [this] { anteprimaCartella(); });
    alClic(PushButton2, [this] { anteprimaPlaylist(); });
    ElencaPlaylist();
}

void ImpostaVideo::anteprimaCartella() {
    if (const QString percorso = File1.percorso(File1.ListIndex()); !percorso.isEmpty())
        AnteprimaVideo(ambiente(), percorso, this).mostraModale();
}

void ImpostaVideo::anteprimaPlaylist() {
    if (!haVoci())
        return;
    // The entry may name the file in another case, or as other machines see it. A missing one opens an empty form.
    const QString voce = voceScelta();
    const Percorsi::Esame esame = ambiente().percorsi.chiediEAspetta(voce);
    const QString film = esame.percorso.isEmpty() ? ambiente().percorsi.nativo(voce).value_or(voce) : esame.percorso;
    AnteprimaVideo(ambiente(), film, this).mostraModale();
}

} // namespace zuvora
