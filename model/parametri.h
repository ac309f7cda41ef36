// The 21 dimensions that the user types, and the file that keeps them for the next start.
#pragma once

#include <span>

#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"

namespace tarvel {

constexpr int kNumParametri = 21;

/// Element i is box Text1(i): 0-8 heights, 9-15 bases, 16-20 slopes in percent.
using VettoreParametri = Tabella<"delle dimensioni", Reale, 0, kNumParametri - 1>;

extern VettoreParametri ParametriSezione;

/// Fills ParametriSezione from "CapSezDe.txt" in DirCustom, each item taken as a box takes it ('20cm' is
/// 20, nothing is 0). An item without a number, as any failure, stops the reading there, silently: what
/// was read stays, the rest is as before.
void LeggiDefault();

/// Writes what the boxes hold, as it was typed: '12,5' comes back as two numbers, which is
/// accepted. A failure is fatal. `caselle` holds the 21 texts in index order.
void ScriviDefault(std::span<const Testo> caselle);

}  // namespace tarvel
