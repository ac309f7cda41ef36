// What the user chose last, kept from one run to the next in "ostrel.ini" of his configuration folder. A file
// that is missing, damaged or read-only costs no more than the memory.
#pragma once

#include <QString>
#include <QVariant>

#include "viewer/disegno/scala.h"

namespace ostrel {

/// What is kept under `chiave`, "group/word" in Italian; `altrimenti` where nothing is.
QVariant Preferenza(const QString& chiave, const QVariant& altrimenti = {});
void Ricorda(const QString& chiave, const QVariant& valore);

/// How paper and files were asked for last; what is missing or makes no sense is as at the first start.
struct SceltaResa {
  QString genere = "pdf";  // the ending of the kind of file
  Resa resa;
};
SceltaResa ResaRicordata();
void RicordaResa(const SceltaResa& scelta);

}  // namespace ostrel
