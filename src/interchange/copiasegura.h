// A copy of a database file that can be trusted: written, brought to the disk, read back from there and
// compared with the original, and a sound data file of that name. What fails is thrown as an ErrorDatos; the
// file that was begun is left as it is.
//
// The engine's look at a copy takes longest and needs no disk: it goes on behind the call that copies, on a
// thread of its own, while the next file is written. No other part of the program uses a thread.
#pragma once

#include <QString>

#include <future>
#include <thread>
#include <vector>

namespace tarvo {

class Archivo;
class Avance;

// The engine's look at a copy, from the start of the object on; its end stops what is not done.
class Examen {
  public:
    explicit Examen(const QString &ruta);
    // Waits for its end. Throws what is wrong with the copy.
    void Exigir(Avance &avance);

  private:
    QString ruta_;
    std::future<void> resultado_;
    std::jthread hilo_;
};

// `origen` is open for reading, at its beginning. The copy counts once the result has been asked for by
// Exigir.
[[nodiscard]] Examen CopiarSeguro(Archivo &origen, const QString &destino, Avance &avance);

// Of all of them, in their order.
void Exigir(std::vector<Examen> &examenes, Avance &avance);

} // namespace tarvo
