// The user's hand: what a person does with mouse and keyboard, with the events it causes in their
// order. Each action is false when it could not be done: the control cannot be used now, does not
// take it, or was taken away by a handler before the action was done.
#pragma once

#include <vector>

#include "platform/controlli.h"

namespace tarvel::headless {

/// By mouse: in a box at the end of its text, in a list beside its entries.
bool Vai(Controllo& controllo);
/// Buttons and boxes that no other covers.
bool Clicca(Controllo& controllo);

constexpr int kTastoTab = 9;
constexpr int kTastoSu = 24, kTastoGiu = 25;
constexpr int kTastoCanc = 127;
/// A key where the focus is: the code of its character, kTastoTab, an arrow or kTastoCanc (Delete).
bool Premi(int tasto);
/// Where the focus is, in place of the selected text or at the end.
bool Incolla(const Testo& testo);
bool Invio(Controllo& controllo);
/// Selects all and types key by key; an empty text is one Backspace.
bool Digita(Controllo& casella, const Testo& testo);
/// A click on the first of these entries, from 0, and Ctrl+click on the others.
bool Seleziona(Controllo& lista, const std::vector<int>& voci);
bool DoppioClick(Controllo& lista, int voce);

}  // namespace tarvel::headless
