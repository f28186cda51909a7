#include "shell/host/MsgForm.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int bottoneChiudi = 0;
constexpr int bottoneConferma = 1;

// A text that needs more than its line keeps its place at the gap between the two: the first grows upwards, the second
// downwards.
void faiPosto(Label &label, const QFont &font, bool versoAlto) {
    const Posto posto = label.posto();
    const int serve = twipsDa(misuraDidascalia(label.Caption(), font, pixelDa(posto).width()).height());
    if (serve > posto.height)
        label.setPosto({posto.left, versoAlto ? posto.top + posto.height - serve : posto.top, posto.width, serve});
}

Disegno segnoDi(Tono tono) {
    switch (tono) {
    case Tono::Riuscita:
        return Disegno::Riuscita;
    case Tono::Domanda:
        return Disegno::Domanda;
    case Tono::Rifiuto:
        break;
    }
    return Disegno::Avviso;
}

} // namespace

Tono tonoDi(const QString &riga0) {
    static const QRegularExpression fatto(
        u"\\b(effettuat|memorizzat|salvat|impostat|modificat|aggiornat|cancellat|copiat|aggiunt)[aoie]\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression negato(u"\\b(non|nessun[ao]?|impossibile|errore|prima)\\b"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return riga0.contains(fatto) && !riga0.contains(negato) ? Tono::Riuscita : Tono::Rifiuto;
}

MsgForm::MsgForm(const Ambiente &contesto, const QString &riga0, const QString &riga1, bool domanda, QWidget *padre)
    : Form(contesto, "MsgForm", "", {8400, 5040}, padre),
      Image1(this, "Image1", {120, 120, 3480, 4800}, Disegno::SalaAttesa),
      Segno(this, "Segno", {7815, 285, 465, 465}, segnoDi(domanda ? Tono::Domanda : tonoDi(riga0))),
      Label1(this, "Label1", "Messaggio x te  da Zuvora", {3840, 360, 3975, 315}),
      Label2(this, "Label2", {{0, "", {3840, 2040, 4320, 255}}, {1, "", {3840, 2400, 4320, 255}}}),
      PB1(this, "PB1",
          {{bottoneConferma, "&Conferma", {6000, 4440, 975, 330}},
           {bottoneChiudi, "C&hiudi", {6960, 4440, 975, 330}}}) {
    QFont titolo = font();
    titolo.setPointSizeF(11);
    titolo.setBold(true);
    Label1.setFontBase(titolo);
    const QString righe[] = {riga0, riga1};
    for (const auto &[indice, label] : Label2) {
        label->setCaption(righe[indice]);
        label->setVisible(!righe[indice].isEmpty());
        faiPosto(*label, font(), indice == 0);
    }
    PB1(bottoneConferma).setVisible(domanda);
    setAccessibleName(Label1.Caption());
    setAccessibleDescription(riga0 + QLatin1Char(' ') + riga1);
    alClic(PB1, [this](int indice) {
        m_risposta = indice == bottoneConferma ? RispostaMessaggio::Conferma : RispostaMessaggio::Chiudi;
        scarica();
    });
    PB1(bottoneChiudi).setFocus();
}

void mostraMessaggio(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1) {
    MsgForm(ambiente, riga0, riga1, false, padre).mostraModale();
}

bool chiediConferma(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1) {
    MsgForm form(ambiente, riga0, riga1, true, padre);
    form.mostraModale();
    return form.risposta() != RispostaMessaggio::Chiudi;
}

} // namespace zuvora
