#include "content/forms/ImpostaFoto.h"

#include "content/logic/Predefinita.h"
#include "shell/host/Tastiera.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int massimeCifre = 2;

} // namespace

ImpostaFoto::ImpostaFoto(const Ambiente &contesto, QWidget *padre) : FormPlaylist(contesto, aspettoFoto, padre) {
    text1.setFiltro(soloCifre);
    bottoneDi(text1, Command89); // the one that stores the time
    text1.setMaxLength(massimeCifre);
    quando(Image1, &AnteprimaImmagine::cambiato, [this] {
        if (m_tace && !Image1.guasto().isEmpty())
            Image1.svuota();
    });
    text1.clear(); // a time that can't be read must not be stored over with another
    proteggi([this] {
        const QString secondi = leggiSecondi(cartella());
        text1.setMaxLength(std::max<int>(massimeCifre, static_cast<int>(secondi.size()))); // a stored time stays whole
        text1.setText(secondi);
    });
    quando(text1, &QLineEdit::textEdited, [this] {
        if (text1.text().size() <= massimeCifre)
            text1.setMaxLength(massimeCifre);
    });
    ElencaPlaylist();
}

void ImpostaFoto::clicFile(const QString &percorso) {
    mostra(percorso, false);
}

void ImpostaFoto::clicVoce(const QString &percorso) {
    mostra(percorso, true);
}

void ImpostaFoto::mostra(const QString &percorso, bool tace) {
    m_tace = tace;
    Image1.mostra(percorso);
}

bool ImpostaFoto::chiediTempo(std::optional<double> &tempo) {
    tempo = tempoDaSecondi(text1.text());
    if (!tempo)
        avvisa(u"Impostare valore compreso fra 1 e 60"_s);
    return tempo.has_value();
}

} // namespace zuvora
