#include "content/forms/SalvaNuovoIM.h"

#include "content/logic/Playlist.h"
#include "shell/logic/TestoAnsi.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int massimoNome = 50; // characters

bool ammesso(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z');
}

} // namespace

SalvaNuovoIM::SalvaNuovoIM(const Ambiente &contesto, const TipoPlaylist &tipo, const QStringList &righe, QWidget *padre)
    : Form(contesto, "SalvaNuovoIM", "Salva PlayList in nuovo File", {5175, 2610}, padre), m_tipo(tipo),
      m_righe(righe) {
    Label1.setCaption(tipo.estensione.mid(1).toString());
    Label2.setCaption(tipo.parola.toString());
    Label2.setColori(palette().color(QPalette::Window)); // there for the program, not for the eye
    FE.setMaxLength(massimoNome);
    FE.setFiltro(ammesso);
    FE.setSoloDigitato();
    FE.setSvuotaAppunti(ambiente().piattaforma, Edit::Svuota::AdOgniTasto);
    FE.setAccessibleName(u"Nome del file"_s);
    FE.setToolTip(u"Solo lettere minuscole senza accento e cifre"_s);
    PushButton1.setRuolo(Ruolo::Principale);
    alClic(PushButton1, [this] { salva(); });
    alClic(Command5, [this] { scarica(); });
    FE.setFocus();
}

void SalvaNuovoIM::salva() {
    if (FE.text().isEmpty()) {
        avvisa(u"Inserire un nome per il file !"_s);
        return;
    }
    const QString file = QDir(cartella()).filePath(conEstensione(m_tipo, FE.text()));
    if (const QString motivo = scriviRighe(file, m_righe); !motivo.isEmpty()) {
        avvisa(u"La playlist non è stata salvata !"_s, motivo);
        return;
    }
    scarica();
}

} // namespace zuvora
