// A key that is held down acts in the window where it was pressed, and answers no box that it has opened.
//
// The system tells a held key as strokes that begin where the one before ends, and not all of them are marked
// as repeated. Here they are known by their times: those that follow in another window than the first one
// are dropped until the key goes up, and so are the unmarked ones, which would press a button once more. Two
// strokes that come as fast as a scanner sends them are strokes of their own.
#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;

namespace tarvo {

// To be installed on the application.
class TeclaSostenida : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    bool Sobra(QObject *ventana, const QKeyEvent &tecla);

    int tecla_ = 0; // the last one that went down
    QPointer<QObject> ventana_;
    quint64 desde_ = 0;    // ms, when it went down, the last time that it did so at once
    quint64 hasta_ = 0;    // when it was told to have gone up
    bool perdida_ = false; // it has come into another window since
};

} // namespace tarvo
