// The drawings opened last, kept from one run to the next.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrel {

inline constexpr int kMassimiRecenti = 8;

/// Absolute paths, the latest first.
QStringList Recenti();
/// Puts a drawing first; the one that has waited longest makes room.
void AggiungiRecente(const QString& percorso);
void TogliRecente(const QString& percorso);
void SvuotaRecenti();

/// As an entry of a menu: its place as the key, the file and its folder, shortened to be read.
QString VoceRecente(int posto, const QString& percorso);

}  // namespace ostrel
