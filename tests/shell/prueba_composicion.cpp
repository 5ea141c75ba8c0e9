// The program's own windows behind the entries of the main window.
#include "mundoprincipal.h"

#include "documents/ventanas/frmfactura.h"

#include <QAccessible>
#include <QDialog>
#include <QTemporaryDir>

namespace tarvo {
namespace {

class ComposicionTest : public MundoPrincipal {};

TEST_F(ComposicionTest, ExportIsOfferedWhileAListWithRowsIsOnScreen) {
    mundo.datos.Ejecutar("INSERT INTO clientes.Clientes (codigo, nombre) VALUES ('1', 'Ana')");
    composicion = Componer(mundo.servicios());
    Abrir();
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
    Pide(Qt::Key_F3);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled()) << "there is no supplier";
    Pide(Qt::Key_F4);
    EXPECT_TRUE(DeMenu("exportar")->isEnabled());
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"clientes.txt"_qs);
    mundo.preguntas.EsperaRuta(
        {.para = PedidoRuta::Para::Guardar,
         .titulo = u"Exportar..."_qs,
         .filtro = u"Hoja de Microsoft Excel|*.xls|Archivo de texto separado por comas|*.txt"_qs,
         .carpeta = QString()},
        ruta);
    Pide(Qt::Key_F6, Qt::ControlModifier);
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(archivo.readAll(), "1,Ana,,,\r\n");
    Pide(Qt::Key_F3);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled()) << "the customers are closed";
    EXPECT_EQ(TextoEstado(), QString()) << "and so is their hint";
}

TEST_F(ComposicionTest, TheBackupIsADialogOverTheMainWindow) {
    composicion = Componer(mundo.servicios());
    Abrir();
    QString modal;
    QTimer cierre;
    QObject::connect(&cierre, &QTimer::timeout, &cierre, [&] {
        if (QWidget *const dialogo = QApplication::activeModalWidget()) {
            modal = dialogo->objectName();
            Tecla(dialogo, Qt::Key_Escape);
        }
    });
    cierre.start(1);
    Pide(Qt::Key_F6);
    EXPECT_EQ(modal, u"frmRespaldo");
    EXPECT_FALSE(DeBarra("respaldar")->isChecked());
}

TEST_F(ComposicionTest, TheEntriesOfReturnsOpenTheAccountsAndGoThere) {
    mundo.datos.Ejecutar("INSERT INTO ventas.Ventas(fecha,hora,idcliente,tipo,descripcion,total) VALUES"
                         "('22/11/2026','10:00','0','Contado','Factura contado','$ 5,00')");
    composicion = Componer(mundo.servicios());
    Abrir();
    DeMenu("devcontado")->trigger();
    EXPECT_TRUE(Se("cmdContinuarDev"));
    EXPECT_TRUE(DeMenu("estado")->isChecked() && DeBarra("estado")->isChecked());
    EXPECT_TRUE(DeMenu("exportar")->isEnabled());
    DeMenu("devcliente")->trigger();
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_TRUE(DeMenu("estado")->isChecked()) << "open accounts are not closed";
    Pide(Qt::Key_F7);
    EXPECT_EQ(ventana->findChild<QWidget *>(u"frmEstados"_qs), nullptr);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
}

// --- every window, as a screen reader walks through it

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
        QTimer::singleShot(0, ventana.get(), [cual] {
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
    Revisar(ventana.get(), u"main window"_qs);
    for (const auto &[modulo, fabrica] : composicion.modulos) {
        const QString clave = DatosDe(DatosDe(modulo).entrada).clave.toString();
        DeMenu(clave.toUtf8().constData())->trigger();
        Revisar(ventana.get(), clave);
    }
    RevisarDialogo([&] { composicion.opciones(false, ventana.get()); }, u"options"_qs);
    RevisarDialogo([&] { composicion.respaldo(ventana.get()); }, u"backup"_qs);
    FrmFactura disenador(mundo.servicios(), mundo.datos.Carpeta(), ventana.get());
    Revisar(&disenador, u"designer"_qs);
    const std::unique_ptr<QWidget> calculadora(composicion.calculadora(ventana.get()));
    Revisar(calculadora.get(), u"calculator"_qs);
}

} // namespace
} // namespace tarvo
