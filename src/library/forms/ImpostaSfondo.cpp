#include "library/forms/ImpostaSfondo.h"

#include "shell/host/ImmagineIllegibile.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

QString parolaModo(ModoSfondo modo) {
    return modo == ModoSfondo::Layout ? u"Layout"_s : u"Sfondo Totem"_s;
}

} // namespace

ImpostaSfondo::ImpostaSfondo(const Ambiente &contesto, ModoSfondo modo, UsoSfondo uso, QWidget *padre)
    : Form(contesto, "ImpostaSfondo", "Imposta Sfondo schermata FrontEnd", {8130, 8955}, padre), m_modo(modo),
      m_uso(std::move(uso)) {
    Label5.setCaption(parolaModo(m_modo));
    for (Label *accanto : {&Label4, &Label2(0), &Label2(1)}) // to boxes, whose texts stand in the middle
        accanto->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Drive1.setAccessibleName(u"Disco"_s);
    Dir1.setAccessibleName(u"Cartelle"_s);
    File1.setAccessibleName(u"File"_s);
    for (Edit *misura : {&F1, &F2}) {
        misura->setReadOnly(true);
        misura->setFocusPolicy(Qt::ClickFocus);
    }
    quando(m_scelta, &SceltaFile::rifiutato, [this] { avvisa(u"Il disco scelto non è disponibile !"_s); });
    quando(File1, &FileListBox::cliccato, [this] { clicFile(); });
    PushButton1.setRuolo(Ruolo::Principale);
    PushButton3.setRuolo(Ruolo::Distruttivo);
    alClic(PushButton1, [this] { imposta(); });
    alClic(PushButton3, [this] { elimina(); });
    alClic(Command5, [this] { scarica(); });
    Dir1.setFocus();
}

// The files come after the folders that they follow, not in their place beside the drive.
void ImpostaSfondo::attivata() {
    setTabOrder(&Drive1, &Dir1);
    setTabOrder(&Dir1, &File1);
    setTabOrder(&File1, &PushButton1);
}

void ImpostaSfondo::clicFile() {
    SfondoScelto = m_scelta.percorso();
    Label1.hide();
    Image1.mostra(SfondoScelto);
    // The control's own size: it doesn't change with the picture.
    const QRect misura = pixelDa(Image1.posto());
    F1.setText(QString::number(misura.width()));
    F2.setText(QString::number(misura.height()));
}

void ImpostaSfondo::imposta() {
    const bool totem = m_modo == ModoSfondo::SfondoTotem;
    if (SfondoScelto.isEmpty() && totem)
        return;
    // The kiosk's screen shows it at its own size, which asks for more memory than fitting it into a layout.
    const Lettura uso = totem ? Lettura::Ritaglio : Lettura::Ridotta;
    if (!SfondoScelto.isEmpty() && avvisaSeIllegibile(ambiente(), SfondoScelto, this, uso))
        return;
    if (m_uso.imposta(totem ? ambiente().percorsi.diRete(SfondoScelto) : SfondoScelto))
        PushButton1.spunta();
    else
        avvisa(u"Impossibile caricare l'immagine scelta !"_s, u"Lo sfondo resta quello di prima."_s);
}

void ImpostaSfondo::elimina() {
    if (!m_uso.elimina) {
        avvisa(u"Nessun Layout aperto: lo sfondo del Totem"_s, u"si elimina dalla sua schermata."_s);
        return;
    }
    m_uso.elimina();
    PushButton3.spunta();
}

void apriSfondoLayout(const Ambiente &ambiente, const UsoSfondo &uso, QWidget *padre) {
    ImpostaSfondo(ambiente, ModoSfondo::Layout, uso, padre).mostraModale();
}

std::optional<QString> apriSfondoTotem(const Ambiente &ambiente, QWidget *padre) {
    std::optional<QString> impostato;
    const auto imposta = [&impostato](const QString &percorso) {
        impostato = percorso;
        return true;
    };
    ImpostaSfondo(ambiente, ModoSfondo::SfondoTotem, {imposta, {}}, padre).mostraModale();
    return impostato;
}

} // namespace zuvora
