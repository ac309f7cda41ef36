// The drawing of the current section: generated, saved, shown, and what the user is told of it.
#pragma once

#include <functional>

namespace tarvel {

/// What the user is told of the drawing file: all, nothing, or that it could not be written.
enum class ModoAvviso { Tutti, Nessuno, Errori };

/// Draws the current section anew and writes the drawing file DirLavori + NomeFileDisegno. A section
/// that is not calculated has its outline rebuilt from ParametriSezione first. A file that cannot be
/// written is no reason for the caller to stop.
void GeneraDisegno(ModoAvviso avvisi);

/// The same in silence, and the viewer shows it; the pointer is the hourglass meanwhile.
void MostraAnteprima();

/// Runs `disegna`, then shows what the tables of Disegno had no room for, also where a fatal error ended it.
void ConAvvisi(const std::function<void()>& disegna);

}  // namespace tarvel
