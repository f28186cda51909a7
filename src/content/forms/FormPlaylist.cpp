#include "content/forms/FormPlaylist.h"

#include "content/forms/SalvaNuovoIM.h"
#include "content/logic/Playlist.h"
#include "content/logic/Predefinita.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/Domanda.h"
#include "shell/logic/FileAtomico.h"
#include "shell/logic/TestoAnsi.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr const char *suggerimento = "Imposta il file ZVI attivo come Predefinito";
constexpr int margineDestro = 90; // twips, for a place that reaches beyond the form

Posto entro(const Posto &posto, const Misura &interno) {
    return {posto.left, posto.top, std::min(posto.width, interno.width - margineDestro - posto.left), posto.height};
}

} // namespace

FormPlaylist::FormPlaylist(const Ambiente &contesto, const AspettoPlaylist &a, QWidget *padre)
    : Form(contesto, a.nome, a.didascalia, a.interno, padre), m_tipo(*a.tipo),
      m_controllo(
          [percorsi = ambiente().percorsi](const QString &percorso) { return vocePresente(percorsi, percorso); }),
      Label1_0(this, "Label1(0)", a.attiva, a.Label1_0), Label1_1(this, "Label1(1)", "", entro(a.Label1_1, a.interno)),
      Label1_5(this, "Label1(5)", "Disco / Cartelle", {120, 750, 1185, 255}),
      Drive1(this, "Drive1", {1320, 720, 1935, 315}), Dir1(this, "Dir1", a.Dir1), File1(this, "File1", a.File1),
      Command89(this, "Command89", "Seleziona come Predefinito!", {6360, 7080, 2415, 330}),
      m_scelta(Drive1, Dir1, File1, m_tipo.contenuti.toString()), Command6(this, "Command6", "&Salva", a.Command6),
      SalvaNuovo(this, "SalvaNuovo", "&Salva in nuovo file", a.SalvaNuovo),
      command1(this, "command1", a.aggiungi, a.command1), Command10(this, "Command10", a.aggiungiTutti, a.Command10),
      Label2_1(this, "Label2(1)", "Files presenti nella playlist selezionata", {120, 4200, 6240, 255}),
      List2(this, "List2", {120, 4560, 6255, 2415}),
      Label2_0(this, "Label2(0)", "Files di impostazione presenti", {6480, 4200, 3240, 255}),
      File2(this, "File2", a.File2), Command2(this, "Command2", "&Elimina dalla PlayList", {120, 7080, 1815, 330}),
      Command3(this, "Command3", "Sposta G&iù", {1920, 7080, 975, 330}),
      Command4(this, "Command4", "Sposta S&u", {2880, 7080, 975, 330}),
      Command9(this, "Command9", "&Vuota PlayList", {3840, 7080, 1215, 330}),
      EliminaFile(this, a.nomeElimina, a.elimina, {5040, 7080, 1335, 330}),
      Command5(this, "Command5", "C&hiudi", {8760, 7080, 975, 330}) {
    Label1_1.setAbbrevia(true);
    Command6.setRuolo(Ruolo::Principale);
    Command89.setToolTip(QString::fromUtf8(suggerimento));
    EliminaFile.setRuolo(Ruolo::Distruttivo);
    File1.setAccessibleName(u"File della cartella"_s);
    File2.setPattern(m_tipo.modello.toString());
    List2.setRilascioFile(true);
    collega();
    Drive1.setAccessibleName(u"Disco"_s);
    Dir1.setAccessibleName(u"Cartelle"_s);
    File2.setFocus();
}

void FormPlaylist::collega() {
    quando(m_scelta, &SceltaFile::rifiutato, [this] { avvisa(u"Il disco scelto non è disponibile !"_s); });
    quando(File1, &FileListBox::cliccato, [this] {
        FileSelezionato = File1.percorso(File1.ListIndex());
        clicFile(FileSelezionato);
    });
    quando(File2, &FileListBox::cliccato, [this] { clicPlaylist(); });
    quando(List2, &ListBox::cliccato, [this] { clicVoce(voceScelta()); });
    quando(List2, &ListBox::fileRilasciati, [this](const QStringList &file) { accogli(file); });
    alClic(command1, [this] { aggiungi(); });
    alClic(Command10, [this] { aggiungiTutti(); });
    alClic(Command2, [this] { elimina(); });
    alClic(Command3, [this] { sposta(1); });
    alClic(Command4, [this] { sposta(-1); });
    alClic(Command9, [this] { List2.Clear(); });
    alClic(Command6, [this] { salva(); });
    alClic(SalvaNuovo, [this] { salvaNuovo(); });
    alClic(Command89, [this] { predefinisci(); });
    alClic(EliminaFile, [this] { eliminaPlaylist(); });
    alClic(Command5, [this] { scarica(); });
}

// The files come after the folders that they follow, not in their place beside the drive.
void FormPlaylist::correggiFuochi() {
    setTabOrder(&Drive1, &Dir1);
    setTabOrder(&Dir1, &File1);
    setTabOrder(&File1, &Command6);
}

void FormPlaylist::ElencaPlaylist() {
    File2.setPath(cartella());
    if (File2.ListCount() > 0)
        File2.setListIndex(0); // counts as a click
    else
        Label1_1.setCaption({});
}

void FormPlaylist::clicPlaylist() {
    PlaylistAperta = File2.percorso(File2.ListIndex());
    Label1_1.setCaption(PlaylistAperta);
    CaricaPlaylist();
}

void FormPlaylist::CaricaPlaylist() {
    if (!haEstensione(m_tipo, PlaylistAperta))
        return;
    m_controllo.smetti();
    List2.Clear();
    const RigheLette letta = leggiRighe(PlaylistAperta);
    m_illeggibile = letta.motivo.isEmpty() ? QString() : PlaylistAperta;
    if (!letta.motivo.isEmpty()) {
        avvisa(u"La playlist non si può leggere !"_s, letta.motivo);
        return;
    }
    List2.setVoci(letta.righe);
    if (!letta.righe.isEmpty())
        List2.setListIndex(0);
    m_controllo.chiedi(letta.righe,
                       [this](const QStringList &mancanti) { proteggi([&] { segnalaMancanti(mancanti); }); });
}

void FormPlaylist::segnalaMancanti(const QStringList &mancanti) {
    const QString motivo = scriviRapporto(m_tipo, mancanti);
    if (mancanti.isEmpty()) {
        const QFileInfo vecchio(percorsoRapporto(m_tipo));
        if (!motivo.isEmpty() && vecchio.isFile() && vecchio.size() > 0 && !std::exchange(m_dettoVecchio, true))
            avvisa(u"Il file %1 è di una lista precedente !"_s.arg(m_tipo.rapporto),
                   u"In questa non manca nulla, ma non si può riscrivere. "_s + motivo);
        return;
    }
    const auto box = [this](const QString &testo) {
        ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, u"Zuvora3"_s,
                                      u"Uno o più files mancanti.\r"_s + testo);
    };
    if (!motivo.isEmpty()) {
        box(u"La lista non si può mostrare: il file %1 non si può scrivere. %2"_s.arg(m_tipo.rapporto, motivo));
        return;
    }
    box(u"Verrà visualizzata la lista !"_s);
    if (!ambiente().piattaforma.apriFile(percorsoRapporto(m_tipo)))
        avvisa(u"Nessun programma per mostrare la lista !"_s, percorsoRapporto(m_tipo));
}

// Only the disk can tell a folder that is called like a file, and it may not answer.
void FormPlaylist::accogli(const QStringList &rilasciati) {
    QStringList adatti;
    std::ranges::copy_if(rilasciati, std::back_inserter(adatti),
                         [this](const QString &percorso) { return eContenuto(m_tipo, percorso); });
    const auto senzaCartelle = [adatti, disco = ambiente().percorsi] {
        QStringList file;
        std::ranges::copy_if(adatti, std::back_inserter(file), [&](const QString &percorso) {
            return disco.esamina(percorso).specie != Specie::Cartella;
        });
        return file;
    };
    zuvora::chiedi<QStringList>(senzaCartelle, *this,
                                [this, adatti, lista = PlaylistAperta](const std::optional<QStringList> &file) {
                                    if (lista != PlaylistAperta)
                                        return; // another list stands there by now
                                    for (const QString &percorso : file.value_or(adatti))
                                        List2.AddItem(percorso);
                                });
}

void FormPlaylist::aggiungi() {
    if (!FileSelezionato.isEmpty())
        List2.AddItem(FileSelezionato);
}

void FormPlaylist::aggiungiTutti() {
    const QString cartellaFile = File1.Path() + QDir::separator();
    for (int i = 0; i < File1.ListCount(); ++i)
        List2.AddItem(cartellaFile + File1.List(i));
}

void FormPlaylist::elimina() {
    if (List2.ListIndex() < 0)
        return;
    List2.RemoveItem(List2.ListIndex());
    if (List2.ListCount() > 0)
        List2.setListIndex(0);
}

void FormPlaylist::sposta(int passi) {
    const int da = List2.ListIndex();
    const int a = da + passi;
    if (da >= 0 && a >= 0 && a < List2.ListCount())
        List2.sposta(da, a);
}

void FormPlaylist::salva() {
    const QString attiva = Label1_1.Caption();
    if (List2.ListCount() == 0 || attiva.isEmpty())
        return;
    if (attiva == m_illeggibile && FileEsiste(attiva)) {
        avvisa(u"La playlist non è stata letta: per non perderla"_s, u"usare \"Salva in nuovo file\"."_s);
        return;
    }
    if (const QString motivo = scriviRighe(conEstensione(m_tipo, attiva), List2.voci()); !motivo.isEmpty())
        avvisa(u"La playlist non è stata salvata !"_s, motivo);
    else
        Command6.spunta();
}

void FormPlaylist::salvaNuovo() {
    if (List2.ListCount() == 0)
        return;
    SalvaNuovoIM(ambiente(), m_tipo, List2.voci(), this).mostraModale();
    ElencaPlaylist();
}

void FormPlaylist::predefinisci() {
    const QString attiva = Label1_1.Caption();
    switch (predefinibile(m_tipo, attiva)) {
    case Predefinibile::No:
        return;
    case Predefinibile::TroppoLunga:
        avvisa(u"Percorso della PlayList troppo lungo !"_s, u"Inserirne uno non maggiore di 254 chrs"_s);
        return;
    case Predefinibile::Si:
        break;
    }
    std::optional<double> tempo;
    if (!chiediTempo(tempo))
        return;
    salvaPredefinita(cartella(), m_tipo, attiva, tempo);
    avvisa(u"PlayList impostata come predefinita !"_s);
}

void FormPlaylist::eliminaPlaylist() {
    if (File2.ListCount() == 0 || Label1_1.Caption().isEmpty())
        return;
    std::error_code errore;
    std::filesystem::remove(QFile::encodeName(Label1_1.Caption()).toStdString(), errore);
    if (errore) {
        avvisa(u"Il file non è stato eliminato !"_s, motivoSistema(errore.value()));
        return;
    }
    m_controllo.smetti();
    List2.Clear();
    File2.setFocus();
    ElencaPlaylist();
}

} // namespace zuvora
