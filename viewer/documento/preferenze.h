// What the user chose before, kept from one run to the next in "ostrel.ini" of his configuration folder.
// Where that file is missing, damaged or read-only, the viewer starts as it did the first time.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "viewer/disegno/scala.h"

namespace ostrel {

/// How a drawing was sent to paper or into a file last.
struct SceltaResa {
  QString genere = "pdf";  // the ending of the kind of file
  Resa resa;               // its unit is only proposed for a drawing whose own has not been said
};

inline constexpr int kMassimiRecenti = 8;
inline constexpr int kMassimeUnita = 100;

struct Preferenze {
  bool fondoChiaro = false;
  SceltaResa scelta;
  QStringList recenti;  // absolute paths of the drawings opened last, the latest first
  QStringList unita;    // the units said and their files, as in "cm /lavori/ponte.dis", the last said first
};

/// What is missing or makes no sense is as at the first start.
Preferenze LeggiPreferenze();

/// Reads the preferences, lets `cambia` change them and writes them: what another viewer has written
/// meanwhile is kept. Gives them as they are now.
Preferenze CambiaPreferenze(const std::function<void(Preferenze&)>& cambia);

/// Puts a drawing's file first among the recent ones; the last of too many leaves the list.
void AggiungiRecente(Preferenze& preferenze, const QString& file);

/// The unit said for the drawing of this file, Ignota where the user does not want to say it; nothing where
/// he has not been asked.
std::optional<Unita> UnitaDi(const Preferenze& preferenze, const QString& file);

/// Keeps the unit of this file's drawing, and proposes it for others; without a file it only proposes it. The
/// unit said first of too many is forgotten.
void RicordaUnita(Preferenze& preferenze, const QString& file, Unita unita);

/// Forgets a file that is no longer there, and the unit of its drawing.
void Dimentica(Preferenze& preferenze, const QString& file);

}  // namespace ostrel
