#pragma once

#include "content/forms/AspettoPlaylist.h"
#include "content/logic/ControlloPlaylist.h"
#include "shell/host/Edit.h"
#include "shell/host/Form.h"
#include "shell/host/ListBox.h"
#include "shell/host/SceltaFile.h"

#include <optional>

namespace zuvora {

// Builds and edits playlists: the one body of the forms for images and for films. What is in the list stays there until
// it is saved.
class FormPlaylist : public Form {
public:
    FormPlaylist(const Ambiente &ambiente, const AspettoPlaylist &aspetto, QWidget *padre);

protected:
    // A file of File1, or an entry of List2, was clicked.
    virtual void clicFile(const QString & /*percorso*/) {}
    virtual void clicVoce(const QString & /*percorso*/) {}
    // What the settings row gets as time with the default: nothing for a kind without one. False: not to be stored.
    virtual bool chiediTempo(std::optional<double> & /*tempo*/) { return true; }

    void correggiFuochi() override;
    void ElencaPlaylist();
    bool haVoci() const { return List2.ListCount() > 0; }
    QString voceScelta() const { return List2.List(List2.ListIndex()); } // empty without one

    const TipoPlaylist &m_tipo;

private:
    void collega();
    void clicPlaylist();
    void CaricaPlaylist();
    void segnalaMancanti(const QStringList &mancanti);
    void accogli(const QStringList &rilasciati);
    void aggiungi();
    void aggiungiTutti();
    void elimina();
    void sposta(int passi);
    void salva();
    void salvaNuovo();
    void predefinisci();
    void eliminaPlaylist();

    QString PlaylistAperta;
    QString FileSelezionato;
    QString m_illeggibile;       // the playlist that could not be read: a save must not cover it
    bool m_dettoVecchio = false; // that the report is an old one
    ControlloPlaylist m_controllo;

    Label Label1_0;
    Label Label1_1;
    Label Label1_5;
    DriveListBox Drive1;
    DirListBox Dir1;

protected:
    FileListBox File1;
    Button Command89;

private:
    SceltaFile m_scelta;
    Button Command6;
    Button SalvaNuovo;
    Button command1;
    Button Command10;
    Label Label2_1;
    ListBox List2;
    Label Label2_0;
    FileListBox File2;
    Button Command2;
    Button Command3;
    Button Command4;
    Button Command9;
    Button EliminaFile;
    Button Command5;
};

} // namespace zuvora
