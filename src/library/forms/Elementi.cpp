#include "library/forms/Elementi.h"

#include "library/logic/Decorazioni.h"
#include "shell/host/AnteprimaImmagini.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/ImmagineIllegibile.h"
#include "shell/logic/CopiaFile.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

Elementi::Elementi(const Ambiente &ambiente_, QWidget *padre)
    : Form(ambiente_, "Elementi", "Decorazioni", {7575, 6195}, padre) {
    IlFileX.hide();
    grid.lega(Data1);
    grid.setAccessibleName(u"Immagini Decorazioni"_s);
    RB1(0).setChecked(true);
    quando(grid, &Grid::cliccata, [this] { mostraRiga(); });
    alClic(RB1, [this](int indice) { scegliCategoria(indice); });
    alClic(PushButton1, [this] { elimina(); });
    alClic(PushButton2, [this] { aggiungi(); });
    alClic(PushButton3, [this] { anteprima(); });
    alClic(Command5, [this] { scarica(); });
    scegliCategoria(0);
    grid.setFocus();
}

void Elementi::scegliCategoria(int indice) {
    const CategoriaDecorazioni &categoria = CategorieDecorazioni.at(std::size_t(indice));
    m_categoria = indice;
    TipoCategoria = categoria.Tipo;
    CartellaDestinazione = cartellaDecorazioni(cartella(), indice);
    apri(Data1, cartella(), categoria.elenco.toString());
    mostraRiga();
}

QString Elementi::percorsoRiga() {
    if (grid.Rows() == 0)
        return {};
    return percorsoDecorazione(cartella(), m_categoria, testoDi(Data1.Recordset()[u"File"].Value(), {}));
}

void Elementi::mostraRiga() {
    if (const QString percorso = percorsoRiga(); !percorso.isEmpty())
        Image1.mostra(percorso);
    else
        Image1.svuota(u"Nessuna immagine in questa categoria"_s);
}

void Elementi::elimina() {
    if (grid.Rows() == 0)
        return;
    if (ePreimpostata(Data1.Recordset()[u"ID"].Value())) {
        avvisa(u"Impossibile cancellare Immagini"_s, u"preimpostate nel software !"_s);
        return;
    }
    if (!conferma(u"Cancello immagine evidenziata ?"_s))
        return;
    Data1.Recordset().Delete();
    Data1.Refresh();
    mostraRiga();
    avvisa(u"Immagine cancellata !"_s);
}

void Elementi::aggiungi() {
    const auto scelto = ambiente().dialoghi.apriFile(this, {u"Selezionare il file da inserire in Decorazioni"_s,
                                                            u"(*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"_s, cartella()});
    const QString origine = scelto.value_or(QString());
    const QString nome = FileScelto(origine);
    IlFileX.setText(origine);
    if (nome.isEmpty() || avvisaSeIllegibile(ambiente(), origine, this))
        return;
    // Asked before anything is written: a no leaves neither a row nor a changed file.
    const Incontro incontro = incontroCopia(origine, CartellaDestinazione);
    if (incontro == Incontro::Diverso && !conferma(u"Il file esiste già nella cartella."_s, u"Sostituirlo ?"_s))
        return;
    const Valore ID = aggiungiDecorazione(Data1.Recordset(), nome, TipoCategoria);
    const QString guasto = incontro == Incontro::LoStesso ? QString() : copiaFile(origine, CartellaDestinazione);
    mostraAggiunta(ID);
    if (guasto.isEmpty())
        avvisa(u"Memorizzazione e Copia effettuate !"_s);
    else
        avvisa(u"Controllare la procedura ed eseguirla nuovamente !"_s, guasto);
}

void Elementi::mostraAggiunta(const Valore &ID) {
    Data1.Refresh();
    Recordset &righe = Data1.Recordset();
    righe.FindFirst(u"[ID]="_s + testoDi(ID, u"0"_s));
    if (!righe.NoMatch())
        grid.seleziona(righe.AbsolutePosition());
    mostraRiga();
}

void Elementi::anteprima() {
    if (const QString percorso = percorsoRiga(); !percorso.isEmpty())
        AnteprimaImmagini(ambiente(), percorso, this).mostraModale();
}

} // namespace zuvora
