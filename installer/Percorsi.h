#pragma once

#include <QString>
#include <optional>

// Paths as rows hold them.
namespace zuvora::installa {

// A value of the start rows with its placeholder filled in, for an installation in `cartella` (absolute):
// "{CARTELLA}/x" becomes the native path of x in it, "{RETE}/x" the form \\MACHINE\folder\x by which the other machines
// reach x. Any other value comes back as it is.
QString espandi(const QString &valore, const QString &cartella);

// The file of this machine that a stored path means: a native path, a path with a drive letter, or \\MACHINE\... where
// MACHINE is this one. Nothing when the path leads to another machine, which can't be told from here.
std::optional<QString> fileLocale(const QString &percorso);

} // namespace zuvora::installa
