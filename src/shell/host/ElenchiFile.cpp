#include "shell/host/ElenchiFile.h"

#include "shell/disegni/Disegni.h"
#include "shell/host/Abbreviate.h"
#include "shell/logic/Domanda.h"

#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QSize misuraIcona{14, 14}; // pixels
constexpr int rientro = 10;

// The folder and those above it, from the root down.
QStringList catena(const QString &cartella) {
    QStringList esito;
    for (QDir dir(cartella);;) {
        esito.prepend(dir.absolutePath());
        const QString sopra = QFileInfo(dir.absolutePath()).path();
        if (sopra == dir.absolutePath())
            return esito;
        dir.setPath(sopra);
    }
}

QTreeWidgetItem *voceCartella(const QString &percorso) {
    const QString nome = QFileInfo(percorso).fileName();
    auto *voce = new QTreeWidgetItem({nome.isEmpty() ? QDir::toNativeSeparators(percorso) : nome});
    voce->setData(0, Qt::UserRole, percorso);
    voce->setIcon(0, icona(Disegno::Cartella));
    return voce;
}

} // namespace

DriveListBox::DriveListBox(QWidget *padre, const char *nome, const Posto &posto,
                           std::shared_ptr<const SistemaFile> sistema)
    : Controllo(padre, nome, posto), m_sistema(std::move(sistema)) {
    setIconSize(misuraIcona);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    abbreviaScelta(*this);
    Refresh();
    connect(this, &QComboBox::activated, this, &DriveListBox::cambiato);
}

QString DriveListBox::Drive() const {
    return currentData().toString();
}

void DriveListBox::setDrive(const QString &cartella) {
    setCurrentIndex(findData(volumeDi(cartella, m_volumi)));
}

void DriveListBox::Refresh() {
    const QString scelta = Drive();
    const auto letti = chiediEAspetta<QList<Volume>>([sistema = m_sistema] { return volumiMontati(*sistema); });
    if (!letti)
        return; // the tables of the system hang: the drives known so far stay
    m_volumi = *letti;
    clear();
    for (const Volume &v : std::as_const(m_volumi))
        addItem(icona(Disegno::Unita), v.nome, v.radice);
    setCurrentIndex(std::max(0, findData(scelta)));
}

void DriveListBox::showPopup() {
    Refresh();
    QComboBox::showPopup();
}

DirListBox::DirListBox(QWidget *padre, const char *nome, const Posto &posto, std::shared_ptr<const SistemaFile> sistema)
    : Controllo(padre, nome, posto), m_sistema(std::move(sistema)) {
    header()->hide();
    setColumnCount(1);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(rientro);
    setIconSize(misuraIcona);
    setUniformRowHeights(true);
    abbreviaVoci(*this);
    setTabKeyNavigation(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *voce) { entra(voce); });
}

bool DirListBox::setPath(const QString &cartella) {
    if (cartella.isEmpty())
        return false;
    const QString assoluta = QFileInfo(QDir::cleanPath(QDir::fromNativeSeparators(cartella))).absoluteFilePath();
    const auto contenuto = leggiCartella(m_sistema, assoluta);
    if (!contenuto)
        return false;
    const QString nuovo = QDir::toNativeSeparators(assoluta);
    const bool altra = nuovo != m_percorso;
    m_percorso = nuovo;
    m_contenuto = *contenuto;
    disponi();
    if (altra)
        Q_EMIT cambiato();
    return true;
}

void DirListBox::Refresh() {
    m_contenuto = leggiCartella(m_sistema, QDir::fromNativeSeparators(m_percorso)).value_or(Contenuto());
    disponi();
}

void DirListBox::disponi() {
    clear();
    m_corrente = nullptr;
    const QStringList cartelle = catena(QDir::fromNativeSeparators(m_percorso));
    for (const QString &cartella : cartelle) {
        QTreeWidgetItem *voce = voceCartella(cartella);
        if (m_corrente == nullptr)
            addTopLevelItem(voce);
        else
            m_corrente->addChild(voce);
        m_corrente = voce;
    }
    const QDir qui(cartelle.constLast());
    QList<QTreeWidgetItem *> dentro;
    for (const QString &nome : std::as_const(m_contenuto.cartelle))
        dentro << voceCartella(qui.filePath(nome));
    m_corrente->addChildren(dentro);
    expandAll();
    setCurrentItem(m_corrente);
    // The folders below are what the user goes on with.
    scrollToItem(m_corrente, PositionAtTop);
}

int DirListBox::ListCount() const {
    return m_corrente == nullptr ? 0 : m_corrente->childCount();
}

QString DirListBox::List(int indice) const {
    const QTreeWidgetItem *voce = m_corrente == nullptr ? nullptr : m_corrente->child(indice);
    return voce == nullptr ? QString() : QDir::toNativeSeparators(voce->data(0, Qt::UserRole).toString());
}

void DirListBox::entra(const QTreeWidgetItem *voce) {
    if (voce != nullptr)
        setPath(voce->data(0, Qt::UserRole).toString());
}

void DirListBox::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        entra(currentItem());
    else if (e->key() == Qt::Key_Backspace && m_corrente != nullptr)
        entra(m_corrente->parent());
    else
        Controllo::keyPressEvent(e);
}

FileListBox::FileListBox(QWidget *padre, const char *nome, const Posto &posto,
                         std::shared_ptr<const SistemaFile> sistema)
    : Elenco(padre, nome, posto), m_sistema(std::move(sistema)) {}

void FileListBox::setPattern(const QString &modello) {
    m_modelli = modello.split(u';', Qt::SkipEmptyParts);
    riempi();
}

void FileListBox::setPath(const QString &cartella) {
    m_percorso = QDir::toNativeSeparators(QDir::cleanPath(QDir::fromNativeSeparators(cartella)));
    Refresh();
}

void FileListBox::mostra(const QString &cartella, const QStringList &file) {
    m_percorso = cartella;
    m_tutti = file;
    riempi();
}

void FileListBox::Refresh() {
    m_tutti.clear();
    if (!m_percorso.isEmpty())
        m_tutti = leggiCartella(m_sistema, QDir::fromNativeSeparators(m_percorso)).value_or(Contenuto()).file;
    riempi();
}

void FileListBox::riempi() {
    QStringList mostrati;
    std::copy_if(m_tutti.begin(), m_tutti.end(), std::back_inserter(mostrati),
                 [this](const QString &nome) { return m_modelli.isEmpty() || QDir::match(m_modelli, nome); });
    inSilenzio([&] {
        clear();
        addItems(mostrati);
        setListIndex(-1);
    });
}

QString FileListBox::percorso(int indice) const {
    const QString nome = List(indice);
    if (nome.isEmpty())
        return {};
    return QDir::toNativeSeparators(QDir(QDir::fromNativeSeparators(m_percorso)).filePath(nome));
}

} // namespace zuvora
