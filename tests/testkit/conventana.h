// A test of one window: its world, its controls by their names, and the operator's hands on them.
#pragma once

#include "desktop/ventanas/listavista.h"
#include "testkit/dobles.h"
#include "testkit/listas.h"
#include "testkit/mundoprueba.h"

#include <memory>

namespace tarvo {

template <typename Ventana> class ConVentana : public testing::Test {
  protected:
    template <typename T = QWidget> T *C(const char *nombre) { return Control<T>(*ventana, nombre); }
    QLineEdit *Campo(const char *nombre) { return C<QLineEdit>(nombre); }
    ListaVista *Lista(const char *nombre) { return C<ListaVista>(nombre); }
    // Of a label, a field or a button.
    QString Texto(const char *nombre) { return C(nombre)->property("text").toString(); }
    bool Se(const char *nombre) { return C(nombre)->isVisible(); }
    bool Habilitado(const char *nombre) { return C(nombre)->isEnabled(); }
    // What the hands do; each tells what has the focus then.
    QString Clic(const char *nombre) {
        Pulsar(C(nombre));
        return ConFoco();
    }
    void ClicFila(ListaVista *lista, int fila, int x) {
        const QRect celda = lista->visualRect(lista->model()->index(fila, 0));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, QPoint(x, celda.center().y()));
    }
    // Keys go to whatever has the focus, as from a keyboard.
    void Teclas(const QString &texto) {
        for (const QChar letra : texto)
            QTest::keyClick(QApplication::focusWidget(), letra.toLatin1());
    }
    QString Pulsa(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
        Tecla(QApplication::focusWidget(), tecla, modificadores);
        return ConFoco();
    }
    QString Entrar() { return Pulsa(Qt::Key_Return); }

    MundoPrueba mundo;
    AnfitrionPrueba anfitrion;
    std::unique_ptr<Ventana> ventana;
};

} // namespace tarvo
