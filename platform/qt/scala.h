// Twips into pixels by one factor for the whole program, and fonts that fit their controls.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

#include "platform/controlli.h"

namespace tarvel {

/// Chooses the factor by the screen: the largest, in quarter steps from 1 to 3, at which the form
/// takes no more than two thirds of it; 1 where even that does not fit.
void ScegliScala(const Form& principale);
double Scala();

/// Pixels of a length in twips, 1/15 of it at scale 1; edges are rounded, so that neighbours in
/// twips are neighbours in pixels.
double Pixel(int twip);
QRect Pixel(const Rettangolo& posto);

/// Nominal size of a font at the chosen scale, in points of the screen's resolution.
double Punti(const Carattere& carattere);

/// The font that a description asks for, or a small clear sans-serif where the host lacks it; made
/// smaller, down to `minimo` of its nominal size, until the text fits. `modo`: flags of Qt's text
/// layout.
QFont CarattereAdatto(const Carattere& carattere, const QString& testo, QSize spazio, int modo,
                      double minimo);

}  // namespace tarvel
