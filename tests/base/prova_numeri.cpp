// Numbers and their texts, checked arithmetic.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>

#include "base/errore.h"
#include "base/intero.h"
#include "base/numeri.h"
#include "base/tabella.h"

namespace tarvel {
namespace {

constexpr double kMax = std::numeric_limits<double>::max();

TEST(Numeri, FormaInvariante) {
  const struct {
    double valore;
    const char* testo;
  } casi[] = {
      {0, "0"},
      {-0.0, "0"},
      {-12.75, "-12.75"},
      {0.5, ".5"},
      {2.0 / 3 * 1e10, "6666666666.66667"},
      {999999999999999, "999999999999999"},
      {1e15, "1E+15"},
      {999999999999999.9, "1E+15"},
      {2036027283214060, "2036027283214060"},
      {-123456789012345678., "-123456789012346000"},
      {1.23456e10 * 1e10, "1.23456E+20"},
      {12345678901e5, "1.2345678901E+15"},
      {123456789012e4, "1234567890120000"},
      {1e-4, ".0001"},
      {9.9999999999999999e-5, ".0001"},
      {9.5e-5, "9.5E-05"},
      {-1e-5, "-1E-05"},
      {kMax, "1.79769313486232E+308"},
      {5e-324, "5E-324"},
  };
  for (const auto& c : casi) {
    EXPECT_EQ(FormatoNumero(c.valore), c.testo) << c.valore;
    EXPECT_NEAR(ConvertiNumero(c.testo).Valore(), c.valore, std::fabs(c.valore) * 1e-14);
  }
  // Hundredths, which nearly all numbers are, as the C library writes them.
  for (int n = -20000; n <= 20000; n += 7) {
    char atteso[32];
    std::snprintf(atteso, sizeof atteso, "%.15g", n / 100.);
    Testo conZero;
    AccodaNumero(conZero, n / 100., '.', true);
    EXPECT_EQ(conZero, atteso);
  }
  Testo stampato;
  AccodaStampato(stampato, 13);
  AccodaStampato(stampato, -0.5, ',');
  AccodaNumero(stampato, 0.25, ',', true);
  EXPECT_EQ(stampato, " 13 -,5 0,25");
}

TEST(Numeri, ConversioneIndulgente) {
  const struct {
    const char* testo;
    double valore;
  } casi[] = {
      {"", 0},          {"abc", 0},        {".5", .5},       {"0.5", .5},    {"-.25", -.25},
      {"+7", 7},        {"1e3", 1000},     {"1D3", 1000},    {"1d-2", .01},  {"1e", 1},
      {"1e+", 1},       {"12,5", 12},      {"12.5cm", 12.5}, {"1 2", 12},    {" \t1\n2 .5", 12.5},
      {"1.2.3", 1.2},   {".", 0},          {"-", 0},         {"--1", 0},     {"&H10", 16},
      {"&hfD", 253},    {"&O17", 15},      {"&O8", 0},       {"&H", 0},      {"&", 0},
      {"1e+400", kMax}, {"-1e400", -kMax}, {"1e-400", 0},    {"0e99999", 0}, {"1e99999999999999999999", kMax},
      {"nan", 0},       {"-inf", 0},       {"0x10", 0},      {"00012", 12},  {"1.5E+16", 1.5e16},
      {"5.", 5},        {"&H1.5", 1},
  };
  for (const auto& c : casi) EXPECT_EQ(ConvertiNumero(c.testo).Valore(), c.valore) << '"' << c.testo << '"';

  EXPECT_EQ(ConvertiNumero("-1e-99999999999999999999").Valore(), 0);
  EXPECT_FALSE(std::signbit(ConvertiNumero("-0").Valore()));
  EXPECT_EQ(ConvertiNumero(std::string(400, '9')).Valore(), kMax);
  EXPECT_EQ(ConvertiNumero("-" + std::string(400, '9')).Valore(), -kMax);
  EXPECT_EQ(ConvertiNumero("&H" + std::string(400, 'F')).Valore(), kMax);
  EXPECT_EQ(ConvertiNumero("." + std::string(500, '0') + "1").Valore(), 0);
  EXPECT_DOUBLE_EQ(ConvertiNumero("." + std::string(500, '0') + "1e501").Valore(), 1);
}

TEST(Numeri, ConversioneRegionale) {
  const struct {
    char decimale, migliaia;
    const char* testo;
    double valore;  // -99: no number
  } casi[] = {
      {',', '.', " 1,5 ", 1.5},         {',', '.', " 1.5", 1.5},     {',', '.', "1.500", 1500},
      {',', '.', "1.500,25", 1500.25},  {',', '.', "1.50,0", -99},   {',', '.', "12.34.567", -99},
      {',', '.', "1.234.567", 1234567}, {',', '.', "-1.234", -1234}, {',', '.', ",5", .5},
      {',', '.', "1,2,3", -99},         {',', '.', "1e3", 1000},     {',', '.', "1,5E-02", .015},
      {'.', ',', "1,500.5", 1500.5},    {'.', ',', "1,5", -99},      {'.', ',', ",5", -99},
      {'.', ',', "1.5", 1.5},           {',', '.', "", -99},         {',', '.', "abc", -99},
      {',', '.', "12cm", -99},          {',', 0, "1.500", 1.5},      {',', '.', "1 5", -99},
      {'.', ',', "1234,567", -99},      {'.', ',', "1,5.000", -99},  {',', '.', "1.234E5", 1.234e5},
      {',', '.', "1.234,5e3", -99},     {'.', ',', "1,234E5", -99},
  };
  for (const auto& c : casi) {
    const auto letto = NumeroRegionale(c.testo, c.decimale, c.migliaia);
    EXPECT_EQ(letto.value_or(-99).Valore(), c.valore) << c.decimale << " \"" << c.testo << '"';
  }
}

// (m 2^e)^n lies within half a step of the double that is given for it; a power halfway between two doubles
// must have been given the even one. The difference fits in whole numbers modulo 2^64.
void ProvaPotenza(std::uint64_t m, int e, int n) {
  const double x = std::ldexp(static_cast<double>(m), e), y = Potenza(x, n);
  const int passo = std::max(std::ilogb(y), -1022) - 52, cifre = passo - n * e;
  const auto intera = static_cast<std::uint64_t>(std::ldexp(y, -passo));
  std::uint64_t esatta = m;
  for (int i = 1; i < n; ++i) esatta *= m;
  const auto manca = static_cast<std::int64_t>(esatta - (intera << cifre));
  EXPECT_LE(std::abs(manca), (std::int64_t{1} << (cifre - 1)) - (intera % 2 == 0 ? 0 : 1)) << x << '^' << n;
  EXPECT_EQ(Potenza(-x, n), n % 2 == 0 ? y : -y);
}

TEST(Numeri, PotenzeArrotondateUnaVolta) {
  const auto ovunque = [](std::uint64_t m, int n) {
    // Also just below the smallest number of 53 bits, and just within the largest.
    for (const int e : {0, -1136 / n, 1023 / n - static_cast<int>(std::bit_width(m))}) ProvaPotenza(m, e, n);
  };
  const struct {
    int n, bit;             // as many as leave no more than 62 to be rounded away
    std::uint64_t mezzana;  // from here on odd numbers have a power of 54 bits, in the middle of two doubles
  } casi[] = {{2, 53, 94906267}, {3, 38, 208065}, {4, 28, 9743}};
  for (const auto& c : casi) {
    const std::uint64_t uno = std::uint64_t{1} << (c.bit - 1);
    for (std::uint64_t d = 1; d < 64; ++d) {
      const std::uint64_t sparsa = uno + d * 0x9E3779B97F4A7C15 % uno;
      for (const std::uint64_t m : {uno + d, uno / 2 * 3 - d, uno / 2 * 3 + d, 2 * uno - d, sparsa})
        ovunque(m, c.n);
      ovunque(c.mezzana + 2 * d, c.n);
    }
  }
  // Squares that lie few units from the middle of two doubles, found bit by bit; products of 53 bits by 53.
  constexpr std::uint64_t kOpposto = std::uint64_t{3} << 52;
  for (int d = -63; d < 64; d += 8) {
    std::uint64_t m = 1;
    for (int k = 3; k < 53; ++k)
      if (((m * m - static_cast<std::uint64_t>(d)) >> k & 1) != (k == 52)) m += std::uint64_t{1} << (k - 1);
    m |= std::uint64_t{1} << 52;
    ovunque(m, 2);
    for (const std::uint64_t fattore : {m, kOpposto - m}) {
      const Doppia p = ProdottoEsatto(static_cast<double>(m), static_cast<double>(fattore));
      EXPECT_EQ(m * fattore, static_cast<std::uint64_t>(std::fmod(p.valore, 0x1p64)) +
                                 static_cast<std::uint64_t>(static_cast<std::int64_t>(p.resto)));
    }
  }
  const struct {
    int n;
    double atteso;
  } diDieci[] = {{-2, .01}, {0, 1}, {1, 10}, {22, 1e22}, {23, 1e23}, {45, 1e45}, {308, 1e308}};
  for (const auto& c : diDieci) EXPECT_EQ(Potenza(Reale(10), c.n), c.atteso) << c.n;
}

// The nearest double is given also where it is hard to tell (for the first case of each function C libraries
// give its neighbour) and where digits cancel: near a multiple of pi, for a large angle, for the smallest
// number.
TEST(Numeri, TrascendentiAlDoppioPiuVicino) {
  const struct {
    double (*funzione)(double);
    double x, atteso;
  } casi[] = {
      {Logaritmo, 1.0652, 0x1.02b6c29c632ccp-4},
      {Logaritmo, 1500.25, 0x1.d40e8883cebcdp+2},
      {Logaritmo, 5e-324, -0x1.74385446d71c3p+9},
      {Logaritmo, 1, 0},
      {Seno, 261.7412, -0x1.abc453aa931c1p-1},
      {Seno, 3.141592653589793, 0x1.1a62633145c07p-53},
      {Coseno, -390.8898, 0x1.e3cd26b3a6101p-3},
      {Coseno, 1e12, 0x1.9538731dff223p-1},
      {Arcotangente, -4.8845, -0x1.5e6d734507bc3p+0},
      {Arcotangente, 1e300, 0x1.921fb54442d18p+0},
      {Arcotangente, 1e-10, 1e-10},
  };
  for (const auto& c : casi) EXPECT_EQ(c.funzione(c.x), c.atteso) << c.x;
}

TipoErrore ErroreDi(const std::function<void()>& f) {
  try {
    f();
  } catch (const ErroreFatale& e) {
    return e.tipo;
  }
  ADD_FAILURE() << "nessun errore";
  return TipoErrore::File;
}

TEST(Numeri, OgniGuastoAritmeticoFerma) {
  const Reale grande = 1e308, zero = 0;
  EXPECT_EQ(ErroreDi([&] { grande + grande; }), TipoErrore::Overflow);
  EXPECT_EQ(ErroreDi([&] { -grande - grande; }), TipoErrore::Overflow);
  EXPECT_EQ(ErroreDi([&] { grande * 2; }), TipoErrore::Overflow);
  EXPECT_EQ(ErroreDi([&] { grande / 1e-10; }), TipoErrore::Overflow);
  EXPECT_EQ(ErroreDi([&] { Potenza(grande, 2); }), TipoErrore::Overflow);
  EXPECT_EQ(ErroreDi([&] { Reale(1) / zero; }), TipoErrore::DivisionePerZero);
  EXPECT_EQ(ErroreDi([&] { zero / zero; }), TipoErrore::OperazioneNonValida);
  EXPECT_EQ(ErroreDi([&] { Radice(Reale(-1)); }), TipoErrore::OperazioneNonValida);
  EXPECT_EQ(ErroreDi([&] { Logaritmo(zero); }), TipoErrore::OperazioneNonValida);
  EXPECT_EQ(ErroreDi([&] { Reale(std::nan("")); }), TipoErrore::OperazioneNonValida);
  EXPECT_EQ((Reale(1e-300) * 1e-300).Valore(), 0) << "l'underflow non è un guasto";

  Intero16 n = 32767;
  EXPECT_EQ(ErroreDi([&] { ++n; }), TipoErrore::Overflow);
  EXPECT_EQ(n, 32767);
  EXPECT_EQ(ErroreDi([&] { InteroPari(32767.5); }), TipoErrore::Overflow);
  EXPECT_EQ(InteroPari(2.5), 2);
  EXPECT_EQ(InteroPari(3.5), 4);

  Tabella<"prova", int, 1, 3> t;
  for (const int i : {0, 4}) EXPECT_EQ(ErroreDi([&] { t[i] = 1; }), TipoErrore::Indice);
}

TEST(Testo, PaginaDiCodici) {
  EXPECT_EQ(DaUtf8("già è €"), "gi\xE0 \xE8 \x80");
  EXPECT_EQ(DaUtf8("日本\xFFx\xC3"), "???x?");
  std::string tutti;
  for (int c = 1; c < 256; ++c)
    if (c != 0x81 && c != 0x8D && c != 0x8F && c != 0x90 && c != 0x9D) tutti += static_cast<char>(c);
  EXPECT_EQ(DaUtf8(InUtf8(tutti)), tutti);
  EXPECT_EQ(Minuscole(DaUtf8("CITTÀ ŠŸ×")), DaUtf8("città šÿ×"));
  EXPECT_EQ(Maiuscole(DaUtf8("è÷ß")), DaUtf8("È÷ß"));
  EXPECT_EQ(SenzaBlanchi("  a b\t "), "a b\t");
}

}  // namespace
}  // namespace tarvel
