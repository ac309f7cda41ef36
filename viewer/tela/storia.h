// The views that can be gone back to.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "viewer/pittura/pittura.h"

namespace ostrel {

struct Inquadratura {
  Vista vista;
  /// The whole drawing, whatever the window and the drawing become.
  bool adattata = true;
};

/// What changes a view. Turns of the wheel in a row, or strokes of the arrows, are one change: going
/// back undoes them together.
enum class Gesto { Unico, Zoom, Scorrimento };

class Storia {
 public:
  /// The view that a change is about to leave.
  void Lascia(const Inquadratura& prima, Gesto gesto) {
    if (gesto != Gesto::Unico && gesto == ultimo_) return;
    ultimo_ = gesto;
    indietro_.push_back(prima);
    if (indietro_.size() > kMassime) indietro_.pop_front();
    avanti_.clear();
  }

  std::optional<Inquadratura> Precedente(const Inquadratura& questa) {
    return Passa(indietro_, avanti_, questa);
  }
  std::optional<Inquadratura> Successiva(const Inquadratura& questa) {
    return Passa(avanti_, indietro_, questa);
  }
  bool HaPrecedente() const { return !indietro_.empty(); }
  bool HaSuccessiva() const { return !avanti_.empty(); }

 private:
  static constexpr std::size_t kMassime = 100;
  using Pila = std::deque<Inquadratura>;

  std::optional<Inquadratura> Passa(Pila& da, Pila& a, const Inquadratura& questa) {
    if (da.empty()) return std::nullopt;
    a.push_back(questa);
    const Inquadratura esito = da.back();
    da.pop_back();
    ultimo_ = Gesto::Unico;
    return esito;
  }

  Pila indietro_, avanti_;
  Gesto ultimo_ = Gesto::Unico;
};

}  // namespace ostrel
