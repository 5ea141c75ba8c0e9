// Every window of the program, as a screen reader walks through it.
#include "mundoprincipal.h"

#include "documents/ventanas/frmfactura.h"

#include <QAccessible>
#include <QDialog>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

bool NecesitaNombre(QAccessible::Role papel) {
    static const QList<QAccessible::Role> papeles{
        QAccessible::PushButton,   QAccessible::CheckBox,      QAccessible::RadioButton,
        QAccessible::EditableText, QAccessible::ComboBox,      QAccessible::SpinBox,
        QAccessible::Slider,       QAccessible::Table,         QAccessible::Tree,
        QAccessible::List,         QAccessible::ButtonMenu,    QAccessible::Link,
        QAccessible::PageTab,      QAccessible::ButtonDropDown};
    return papeles.contains(papel);
}

// Its own name, or that of the label that belongs to it: a reader takes either.
QString Nombre(QAccessibleInterface &acceso) {
    QString nombre = acceso.text(QAccessible::Name);
    for (const auto &[otro, relacion] : acceso.relations(QAccessible::Label))
        nombre += otro->text(QAccessible::Name);
    return nombre.trimmed();
}

QString Camino(const QObject *objeto) {
    return objeto == nullptr ? QString() : Camino(objeto->parent()) + u'/' + objeto->objectName();
}

// A field that is never shown and only keeps a value.
bool Guardado(const QObject *objeto) {
    const auto *control = qobject_cast<const QWidget *>(objeto);
    return control != nullptr && control->isHidden() &&
           control->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

// The controls below, those of closed panels too, that nothing tells the name of.
QStringList SinNombre(QAccessibleInterface *acceso) {
    QStringList malos;
    const QAccessible::Role papel = acceso->role();
    const QString suyo = acceso->object() == nullptr ? QString() : acceso->object()->objectName();
    if (NecesitaNombre(papel) && Nombre(*acceso).isEmpty() && !suyo.startsWith(u"qt_") &&
        !Guardado(acceso->object()))
        malos += u"role %1 at %2"_qs.arg(papel).arg(Camino(acceso->object()));
    // What is inside of these belongs to the toolkit.
    if (papel == QAccessible::ComboBox || papel == QAccessible::SpinBox || papel == QAccessible::Table)
        return malos;
    for (int i = 0; i < acceso->childCount(); ++i)
        if (QAccessibleInterface *hijo = acceso->child(i))
            malos += SinNombre(hijo);
    return malos;
}

void Revisar(QWidget *ventana, const QString &cual) {
    ASSERT_NE(ventana, nullptr) << cual.toStdString();
    const QStringList malos = SinNombre(QAccessible::queryAccessibleInterface(ventana));
    EXPECT_TRUE(malos.isEmpty()) << cual.toStdString() << ":\n" << malos.join(u'\n').toStdString();
}

class AccesoTest : public MundoPrincipal {
  protected:
    // Looks at the dialog that `abrir` runs, and closes it.
    void RevisarDialogo(const std::function<void()> &abrir, const QString &cual) {
        QTimer::singleShot(0, frm.get(), [cual] {
            QWidget *dialogo = QApplication::activeModalWidget();
            Revisar(dialogo, cual);
            if (dialogo != nullptr)
                dialogo->close();
        });
        abrir();
    }
};

TEST_F(AccesoTest, EveryControlHasAName) {
    composicion = Componer(mundo.servicios());
    Abrir();
    Revisar(frm.get(), u"main window"_qs);
    for (const auto &[modulo, fabrica] : composicion.modulos) {
        const QString clave = DatosDe(DatosDe(modulo).entrada).clave.toString();
        DeMenu(clave.toUtf8().constData())->trigger();
        Revisar(frm.get(), clave);
    }
    if (composicion.opciones)
        RevisarDialogo([&] { composicion.opciones(false, frm.get()); }, u"options"_qs);
    if (composicion.respaldo)
        RevisarDialogo([&] { composicion.respaldo(frm.get()); }, u"backup"_qs);
    FrmFactura disenador(mundo.servicios(), mundo.datos.Carpeta(), frm.get());
    Revisar(&disenador, u"designer"_qs);
    if (composicion.calculadora) {
        const std::unique_ptr<QWidget> calculadora(composicion.calculadora(frm.get()));
        Revisar(calculadora.get(), u"calculator"_qs);
    }
}

} // namespace
} // namespace tarvo
