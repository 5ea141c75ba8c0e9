// What time it is, as a service, so that tests can set it.
#pragma once

#include <QDateTime>

namespace tarvo {

class Reloj {
  public:
    virtual ~Reloj() = default;
    virtual QDateTime Ahora() const = 0;
};

class RelojSistema final : public Reloj {
  public:
    QDateTime Ahora() const override { return QDateTime::currentDateTime(); }
};

// "dd/mm/yyyy" and "HH:nn", the forms in which dates and times are shown and stored.
inline QString TextoFecha(const QDateTime &momento) {
    return momento.toString(QStringLiteral("dd/MM/yyyy"));
}
inline QString TextoHora(const QDateTime &momento) {
    return momento.toString(QStringLiteral("HH:mm"));
}

} // namespace tarvo
