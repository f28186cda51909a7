#pragma once

#include "shell/logic/SistemaFile.h"

#include <QObject>
#include <QString>
#include <QStringView>
#include <functional>
#include <memory>
#include <optional>

namespace zuvora {

// A file of the application folder, as the platform writes paths; `relativo` with slashes, as u"a/b.gif".
QString percorsoIn(const QString &cartella, QStringView relativo);

// Paths in every form that rows have them: native ("/home/sala/Totem"), with the drive of another system
// ("C:\Totem"), of the network ("\\SERVER1\Totem"). On a platform without drives the root is the one drive, and the
// folders below it count as shared under their own names.
class Percorsi {
public:
    explicit Percorsi(std::shared_ptr<const SistemaFile> sistema = std::make_shared<SistemaLocale>());

    // Folder and name with one separator between them, that of the folder's own form. An empty folder gives the root.
    QString unisci(const QString &cartella, QStringView nome) const;

    // The path by which this machine reaches what is meant: a share of its own or a mounted one becomes its folder.
    // Nothing when the path leads to another machine, or is none. The disk is not asked.
    std::optional<QString> nativo(const QString &scritto) const;
    // With a drive, for what is cut by position: "/Suoni/din.wav" is "C:\Suoni\din.wav". Others stay.
    QString conUnita(const QString &percorso) const;
    // As other machines reach it: the drive and ":\" give way to this machine's name. A network path stays.
    QString diRete(const QString &percorso) const;

    // What is at the path now.
    struct Esame {
        Specie specie = Specie::Manca;
        QString percorso;  // native, names as the disk spells them; empty when nothing is there
        bool muto = false; // it did not answer in time, and counts as missing
    };
    // Asks the disk, and may block as long as the disk does.
    Esame esamina(const QString &scritto) const;
    // Ask off the thread, at most 2 s: hand the answer over, or come back with it.
    void chiedi(const QString &scritto, QObject &ricevente, std::function<void(const Esame &)> risposta) const;
    Esame chiediEAspetta(const QString &scritto) const;

private:
    QStringList candidati(const QString &scritto) const;
    QStringList diQuestaMacchina(const QString &resto) const;
    QStringList montati(QStringView macchina, const QString &resto) const;
    bool eQuestaMacchina(QStringView nome) const;

    std::shared_ptr<const SistemaFile> m_sistema;
};

} // namespace zuvora
