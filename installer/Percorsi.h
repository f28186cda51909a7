#pragma once

#include <QString>

// Paths as rows hold them.
namespace zuvora::installa {

// A value of the start rows with its placeholder filled in, for an installation in `cartella` (absolute):
// "{CARTELLA}/x" becomes the native path of x in it, "{RETE}/x" the form \\MACHINE\folder\x by which the other machines
// reach x. Any other value comes back as it is.
QString espandi(const QString &valore, const QString &cartella);

} // namespace zuvora::installa
