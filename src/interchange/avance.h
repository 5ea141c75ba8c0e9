// What a backup or a restore tells while it runs, and the one thing that it asks. The window moves its bars
// and paints itself from here; a test ends an operation where it likes.
#pragma once

#include <QString>

namespace tarvo {

class Avance {
  public:
    virtual ~Avance() = default;
    // Asked before each file; false ends the operation there.
    virtual bool Sigue() = 0;
    // The work on a file of `bytes` begins.
    virtual void Empieza(const QString &archivo, qint64 bytes) = 0;
    // So many of its bytes are done, 0 to all of them. Called some hundred times for each second of work,
    // with the same number while something is checked.
    virtual void Hecho(qint64 bytes) = 0;
    // One of the five databases is behind.
    virtual void Avanza() = 0;
};

} // namespace tarvo
