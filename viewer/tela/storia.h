// Keeps the views that the user can go back to.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "viewer/pittura/pittura.h"

namespace ostrel {

struct Inquadratura {
  Vista vista;
  /// The whole drawing is shown, also after the window or the drawing has changed.
  bool adattata = true;
};

/// What changes a view. Going back undoes the turns of the wheel in a row, or the strokes of the arrows,
/// together.
enum class Gesto { Unico, Zoom, Scorrimento };

class Storia {
 public:
  /// Keeps the view that a change is about to leave.
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
