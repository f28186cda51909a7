#include "library/forms/Elementi.h"

#include "library/logic/Aggiunta.h"
#include "library/logic/Decorazioni.h"
#include "shell/host/AnteprimaImmagini.h"
#include "shell/host/Attesa.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/ImmagineIllegibile.h"
#include "shell/logic/CopiaFile.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

Elementi::Elementi(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "Elementi", "Decorazioni", {7575, 6195}, padre) {
    IlFileX.hide();
    grid.lega(Data1);
    grid.setAccessibleName(u"Immagini Decorazioni"_s);
    m_gruppo.setScelto(0);
    PushButton2.setRuolo(Ruolo::Principale);
    PushButton1.setRuolo(Ruolo::Distruttivo);
    quando(grid, &Grid::rigaCambiata, [this] { mostraRiga(); });
    quando(grid, &Grid::attivato, [this] { anteprima(); });
    quando(m_gruppo, &GruppoRadio::cambiato, [this](int indice) { scegliCategoria(indice); });
    alClic(PushButton1, [this] { elimina(); });
    alClic(PushButton2, [this] { aggiungi(); });
    alClic(PushButton3, [this] { anteprima(); });
    alClic(Command5, [this] { scarica(); });
    riparaAggiunte(cartella());
    scegliCategoria(0);
    grid.setFocus();
}

void Elementi::scegliCategoria(int indice) {
    const CategoriaDecorazioni &categoria = categorieDecorazioni.at(std::size_t(indice));
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

// Adds the picked file: nothing is written before the user has decided and the copy stands ready, and a copy that can't
// be made leaves the row.
void Elementi::aggiungi() {
    const QString origine = scegliFile();
    const QString nome = FileScelto(origine);
    IlFileX.setText(origine);
    if (nome.isEmpty() || avvisaSeIllegibile(ambiente(), origine, this))
        return;
    const QString destinazione = CartellaDestinazione + nome;
    const auto incontro = aspettaEsito<Incontro>(
        ambiente(), this, u"Confronto con il file che esiste già..."_s,
        [origine, destinazione](Avanzamento &a) { return incontroCopia(origine, destinazione, a); });
    if (!incontro ||
        (*incontro == Incontro::Diverso && !conferma(u"Il file esiste già nella cartella."_s, u"Sostituirlo ?"_s)))
        return;
    std::shared_ptr<CopiaPreparata> copia;
    if (*incontro != Incontro::LoStesso && (copia = preparaCopia(origine)) == nullptr)
        return;
    const Valore ID = aggiungiDecorazione(Data1.Recordset(), nome, TipoCategoria);
    const QString guasto = copia ? copia->colloca(destinazione) : QString();
    mostraAggiunta(ID);
    if (guasto.isEmpty())
        avvisa(u"Memorizzazione e Copia effettuate !"_s);
    else
        avvisa(u"Controllare la procedura ed eseguirla nuovamente !"_s, guasto);
}

QString Elementi::scegliFile() {
    return ambiente()
        .dialoghi
        .apriFile(this, {u"Selezionare il file da inserire in Decorazioni"_s,
                         u"(*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"_s, cartella()})
        .value_or(QString());
}

// Null when the user called it off.
std::shared_ptr<CopiaPreparata> Elementi::preparaCopia(const QString &origine) {
    const QString temporaneo = postoTemporaneo(CartellaDestinazione, ultimoID(cartella()), FileScelto(origine));
    return aspettaEsito<std::shared_ptr<CopiaPreparata>>(ambiente(), this, u"Copia del file in corso..."_s,
                                                         [origine, temporaneo](Avanzamento &a) {
                                                             return std::make_shared<CopiaPreparata>(origine,
                                                                                                     temporaneo, a);
                                                         })
        .value_or(nullptr);
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
