#pragma once

#include "shell/logic/Messaggio.h"
#include "shell/store/NomiFile.h"
#include "shell/store/Recordset.h"

#include <QString>
#include <QStringView>
#include <array>

namespace zuvora {

// The catalogue of decorations: the table Decorazioni and a folder of pictures for each category.
struct CategoriaDecorazioni {
    int Tipo; // as in the table
    QStringView parola;
    QStringView cartella; // under the application folder; the one spelling of its name
    QStringView elenco;   // the rows, for the form that manages the catalogue
};
inline constexpr std::array<CategoriaDecorazioni, 3> categorieDecorazioni = {{
    {1, u"Cornici", nomi::cornici, u"Select * from Decorazioni where [tipo]=1 order by [file]"},
    {2, u"Banner", nomi::banner, u"Select * from Decorazioni where [tipo]=2 order by [file]"},
    {3, u"Elementi", nomi::elementi, u"Select * from Decorazioni where [tipo]=3 order by [file]"},
}};

// The rows to choose from, by Tipo.
QString sorgenteDecorazioni(int TipoCategoria);
// The folder of a category in native form, with its trailing separator. `indice` counts the categories from 0.
QString cartellaDecorazioni(const QString &PercorsoApplicazione, int indice);
// The picture of a row of the category: the folder and the row's File.
QString percorsoDecorazione(const QString &PercorsoApplicazione, int indice, const QString &File);

// The last of the pictures that come with the product; a row added by the user has a higher ID.
inline constexpr qlonglong ultimaPreimpostata = 171;
// A row without an ID can't be told from the product's.
bool ePreimpostata(const Valore &ID);

// The caption that names the target, "Decorazione 7", and the way back: 1 to 25, or 0 for any other text.
QString nomeDecorazione(int i);
int indiceDecorazione(const QString &Label1);

// Adds a row and gives its ID, by which it is found again. Throws EngineError.
Valore aggiungiDecorazione(Recordset &decorazioni, const QString &FileScelto, int TipoCategoria);

} // namespace zuvora
