#pragma once

#include "content/logic/TipiPlaylist.h"
#include "shell/host/Edit.h"
#include "shell/host/Form.h"

namespace zuvora {

// Saves a playlist under a new name.
class SalvaNuovoIM : public Form {
public:
    SalvaNuovoIM(const Ambiente &ambiente, const TipoPlaylist &tipo, const QStringList &righe, QWidget *padre);

private:
    void salva();

    const TipoPlaylist &m_tipo;
    QStringList m_righe;

    GroupBox GroupBox1{this, "GroupBox1", "Inserire nome del file", {120, 240, 4815, 1455}};
    Edit FE{&GroupBox1, "FE", {240, 600, 4335, 285}};
    Label Label1{&GroupBox1, "Label1", "", {3480, 960, 1095, 255}};
    Label Label2{this, "Label2", "", {240, 2020, 1215, 375}};
    Button PushButton1{this, "PushButton1", "C&onferma", {2400, 2040, 975, 330}};
    Button Command5{this, "Command5", "&Annulla", {3360, 2040, 975, 330}};
};

} // namespace zuvora
