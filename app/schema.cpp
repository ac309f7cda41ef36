// Positions in twips.
#include "app/schema.h"

#include <iterator>

namespace tarvel {
namespace {

// Of the boxes' texts as in the note beside the schematic.
constexpr Colore kAltezze{0, 0, 0};
constexpr Colore kBasi{0, 0, 255};
constexpr Colore kPendenze{0, 128, 0};

constexpr Colore kLineeContorno{0, 0, 0};
constexpr Colore kLineeQuota{255, 255, 0};

// clang-format off
constexpr CasellaSchema kCaselle[] = {
    {kLarghezzaTotale,        4248,   72, kBasi},
    {kPendenzaSinistra,       2076,  540, kPendenze},
    {kPendenzaColmoSinistra,  3912,  564, kPendenze},
    {kPendenzaColmoDestra,    4524,  564, kPendenze},
    {kPendenzaDestra,         6300,  552, kPendenze},
    {kSbalzo,                 1116, 1044, kBasi},
    {kDaSbalzoAdAnima,        1692, 1032, kBasi},
    {kRaccordoSuperiore,      2220, 1056, kBasi},
    {kDaRaccordoAColmo,       3048, 1056, kBasi},
    {kDaColmoAMezzeria,       3912, 1056, kBasi},
    {kEstremitaSbalzi,         156, 1764, kAltezze},
    {kAttaccoSbalzi,          1404, 2100, kAltezze},
    {kSommitaEsternaAnime,    1548, 2388, kAltezze},
    {kSommitaInternaAnime,    2316, 2388, kAltezze},
    {kSolettaFineRaccordo,    2604, 2004, kAltezze},
    {kSolettaMezzeria,        3612, 1764, kAltezze},
    {kInclinazioneAnime,      1416, 3048, kPendenze},
    {kRaccordoInferiore,      2388, 3012, kBasi},
    {kAltezzaTotale,          4476, 2484, kAltezze},
    {kAltezzaRaccordo,        2844, 3252, kAltezze},
    {kSolettaInferiore,       5148, 3840, kAltezze},
};

struct Tratto {
  int x1, y1, x2, y2;
};

// Line1: the outline and the cell.
constexpr Tratto kContorno[] = {
    { 816, 1752,  816, 1952},  //  0  edge of the left tip
    { 816, 1752, 3816, 1452},  //  1  top, kPendenzaSinistra
    {3816, 1460, 4416, 1440},  //  2  kPendenzaColmoSinistra
    {4416, 1440, 5016, 1460},  //  3  kPendenzaColmoDestra
    {5040, 1452, 8004, 1728},  //  4  kPendenzaDestra
    {8016, 1752, 8016, 1952},  //  5  edge of the right tip
    { 816, 1956, 1816, 2056},  //  6  underside of the left cantilever
    {1824, 2052, 2024, 2252},  //  7  from the left cantilever to the web
    {2028, 2256, 2128, 3756},  //  8  left web outside
    {8020, 1956, 7020, 2056},  //  9  underside of the right cantilever
    {6820, 2256, 6720, 3756},  // 10  right web outside
    {2124, 3768, 6724, 3768},  // 11  bottom
    {2556, 3540, 6284, 3552},  // 12  cell: bottom
    {2280, 3300, 2220, 2352},  // 13  left web
    {3816, 1652, 4416, 1632},  // 14  top, left of the crown
    {4416, 1632, 5016, 1652},  // 15  right of it
    {2616, 1956, 3816, 1656},  // 16  left slope of the top slab
    {2220, 2356, 2620, 1956},  // 17  upper left fillet
    {6624, 2352, 6564, 3324},  // 18  right web
    {6216, 1956, 6616, 2356},  // 19  upper right fillet
    {6216, 1956, 5016, 1656},  // 20  right slope of the top slab
    {2268, 3312, 2556, 3540},  // 21  lower left fillet
    {6564, 3312, 6288, 3540},  // 22  lower right fillet
    {6816, 2252, 7016, 2052},  // 23  from the right cantilever to the web
};

// Line2: dimension lines and their ticks.
constexpr Tratto kQuote[] = {
    {4416, 3760, 4416, 1440},  //  0  kAltezzaTotale
    {5316, 3752, 5316, 3552},  //  1  kSolettaInferiore
    { 684, 1752,  684, 1952},  //  2  kEstremitaSbalzi
    {1824, 1656, 1824, 2056},  //  3  kAttaccoSbalzi
    {2016, 1632, 2016, 2252},  //  4  kSommitaEsternaAnime
    {2220, 1608, 2220, 2358},  //  5  kSommitaInternaAnime
    {2616, 1560, 2616, 1960},  //  6  kSolettaFineRaccordo
    {3816, 1452, 3816, 1652},  //  7  kSolettaMezzeria
    { 828, 1332, 4428, 1332},  //  8  kSbalzo to kDaColmoAMezzeria, on one line
    { 828, 1284,  828, 1380},  //  9  tick of 8
    {2316, 3300, 2556, 3300},  // 10  kRaccordoInferiore
    {1836, 1284, 1836, 1380},  // 11  tick of 8
    {2604, 1284, 2604, 1380},  // 12  tick of 8
    {2748, 3300, 2748, 3540},  // 13  kAltezzaRaccordo
    {2220, 1284, 2220, 1380},  // 14  tick of 8
    {1980, 1284, 1980, 1380},  // 15  tick of 8
    { 636, 1764,  732, 1764},  // 16  tick of kEstremitaSbalzi
    {4428, 1284, 4428, 1380},  // 17  tick of 8
    {3804, 1284, 3804, 1380},  // 18  tick of 8
    { 636, 1956,  732, 1956},  // 19  tick of kEstremitaSbalzi
    {2700, 3300, 2796, 3300},  // 20  tick of kAltezzaRaccordo
    {2556, 3252, 2556, 3348},  // 21  tick of kRaccordoInferiore
    { 780,  852, 8028,  852},  // 22  kPendenzaSinistra to kPendenzaDestra, on one line
    { 780,  804,  780,  900},  // 23  tick of 22
    {5004,  804, 5004,  900},  // 24  tick of 22
    {4428,  804, 4428,  900},  // 25  tick of 22
    {3804,  804, 3804,  900},  // 26  tick of 22
    {8028,  804, 8028,  900},  // 27  tick of 22
    {1884, 2964, 1884, 3364},  // 28  kInclinazioneAnime
    {1884, 2964, 1932, 3360},  // 29  side of the same
    {1884, 3348, 1932, 3348},  // 30  side of the same
    {8028,  276, 8028,  372},  // 31  tick of kLarghezzaTotale
    { 780,  276,  780,  372},  // 32  tick of kLarghezzaTotale
    { 780,  324, 8028,  324},  // 33  kLarghezzaTotale
};
// clang-format on

}  // namespace

std::span<const CasellaSchema> CaselleSchema() {
  return kCaselle;
}

std::vector<LineaForm> LineeSchema() {
  std::vector<LineaForm> linee;
  linee.reserve(std::size(kContorno) + std::size(kQuote));
  for (const Tratto& t : kContorno) linee.push_back({t.x1, t.y1, t.x2, t.y2, kLineeContorno, 2});
  for (const Tratto& t : kQuote) linee.push_back({t.x1, t.y1, t.x2, t.y2, kLineeQuota, 1});
  return linee;
}

}  // namespace tarvel
