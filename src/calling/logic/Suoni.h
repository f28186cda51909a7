#pragma once

#include <QString>
#include <QStringView>

namespace zuvora {

class Recordset;

// The call sounds and the one in use.
inline constexpr QStringView sorgenteSuoni = u"DinDon";

// The path as it is stored: drive and colon, which are the first two characters whatever they are, give way to the
// machine's name, by which the other programs reach the file.
QString percorsoSuono(QStringView scelto, QStringView macchina);

void aggiungiSuono(Recordset &suoni, const QString &percorso);
QString suonoCorrente(Recordset &suoni); // the current record's path, empty for Null

// Settings of the call display: the sound in use, and whether it is used.
void salvaSuonoPredefinito(const QString &cartella, const QString &percorso);
bool leggiUsoSuono(const QString &cartella);
void salvaUsoSuono(const QString &cartella, bool usato);

} // namespace zuvora
