#include "desktop/ventanas/comboelidido.h"
#include "desktop/ventanas/etiquetaelidida.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/preguntasqt.h"
#include "testkit/manos.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>

namespace tarvo {
namespace {

TEST(EtiquetaElidida, LabelAndComboShowInTheTipWhatTheyCut) {
    QWidget fondo;
    fondo.resize(600, 200);
    EtiquetaElidida etiqueta;
    auto &combo = *new ComboElidido(&fondo);
    combo.resize(120, 26);
    etiqueta.resize(120, 26);
    etiqueta.setText(u"Ana"_qs);
    const int alto = etiqueta.sizeHint().height();
    for (const QString &texto :
         {u"Ana & Cía"_qs, QString(40, u'W') + u" & <b>x</b>"_qs, u"Línea\r\ndos\u2028 <b"_qs}) {
        etiqueta.setText(texto);
        combo.clear();
        combo.addItem(texto);
        etiqueta.grab();
        combo.grab();
        const bool cortado = texto.size() > 20;
        EXPECT_EQ(etiqueta.toolTip(), cortado ? texto.toHtmlEscaped() : QString());
        EXPECT_EQ(combo.toolTip(), etiqueta.toolTip());
        EXPECT_EQ(combo.currentText(), texto);
        EXPECT_EQ(etiqueta.sizeHint().height(), alto) << "one line";
        EXPECT_EQ(etiqueta.minimumSizeHint().height(), alto);
    }
    etiqueta.setText(QString(40, u'W') + u" & 1"_qs); // no markup: nothing to escape
    etiqueta.grab();
    EXPECT_EQ(etiqueta.toolTip(), etiqueta.text());
    combo.setPlaceholderText(etiqueta.text()); // a hint is cut as an entry is
    combo.setCurrentIndex(-1);
    combo.grab();
    EXPECT_EQ(combo.toolTip(), etiqueta.text());
    EXPECT_EQ(etiqueta.minimumSizeHint().width(), 0);
    combo.setItemText(0, QString(30, u'W'));
    MostrarVentana(fondo);
    combo.showPopup();
    EXPECT_GE(combo.view()->viewport()->width(), combo.fontMetrics().horizontalAdvance(QString(30, u'W')));
    EXPECT_LE(combo.view()->width(), 600);
    combo.hidePopup();
}

// Answers the next message box by a key and tells what it was.
struct Caja {
    QString texto, titulo, botones, pulsaEntrar;
    QMessageBox::Icon icono = QMessageBox::NoIcon;

    explicit Caja(Qt::Key tecla) {
        QTimer::singleShot(0, qApp, [this, tecla] {
            auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            texto = caja->text();
            titulo = caja->windowTitle();
            icono = caja->icon();
            for (const QAbstractButton *boton : caja->buttons())
                botones += boton->text() + u' ';
            pulsaEntrar = caja->defaultButton()->text();
            Tecla(caja, tecla);
        });
    }
};

TEST(PreguntasQt, AsksInSpanishWithTheGivenButtonReady) {
    PreguntasQt preguntas;
    for (const Respuesta lista : {Respuesta::Si, Respuesta::No}) {
        Caja entrar(Qt::Key_Return);
        EXPECT_EQ(preguntas.Preguntar(u"<b>Sigue?</b>"_qs, lista), lista);
        EXPECT_EQ(entrar.texto, u"<b>Sigue?</b>");
        EXPECT_EQ(entrar.titulo, u"Tarvo");
        EXPECT_EQ(entrar.pulsaEntrar, lista == Respuesta::Si ? u"Sí" : u"No");
        EXPECT_EQ(entrar.icono, QMessageBox::Question);
        Caja escapar(Qt::Key_Escape);
        EXPECT_EQ(preguntas.Preguntar(u"Sigue?"_qs, lista), Respuesta::No);
    }
    Caja mensaje(Qt::Key_Escape);
    preguntas.Mostrar(u"No se pudo."_qs, Icono::Critico);
    EXPECT_EQ(mensaje.botones, u"Aceptar ");
    EXPECT_EQ(mensaje.icono, QMessageBox::Critical);
}

TEST(PreguntasQt, PicksFilesInQtsOwnDialog) {
    QTemporaryDir carpeta;
    PreguntasQt preguntas;
    PedidoRuta pedido{PedidoRuta::Para::Guardar, u"Guardar factura..."_qs,
                      u"Facturas Velbrina|*.kzd|Imágenes|*.jpg;*.bmp"_qs, carpeta.path()};
    const auto conTecla = [&](Qt::Key tecla) {
        QTimer::singleShot(0, qApp, [&pedido, tecla] {
            auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            EXPECT_EQ(dialogo->windowTitle(), pedido.titulo);
            EXPECT_EQ(dialogo->nameFilters(),
                      QStringList({u"Facturas Velbrina (*.kzd)"_qs, u"Imágenes (*.jpg *.bmp)"_qs}));
            EXPECT_EQ(dialogo->directory().path(), pedido.carpeta);
            auto *nombre = dialogo->findChild<QLineEdit *>();
            nombre->setText(u"mía"_qs);
            QTest::keyClick(nombre, tecla);
        });
        return preguntas.ElegirRuta(pedido);
    };
    EXPECT_EQ(conTecla(Qt::Key_Return), carpeta.filePath(u"mía.kzd"_qs));
    pedido.para = PedidoRuta::Para::Abrir; // a file that isn't there is for the caller to tell
    EXPECT_EQ(conTecla(Qt::Key_Return), carpeta.filePath(u"mía"_qs));
    EXPECT_EQ(conTecla(Qt::Key_Escape), QString());
}

// Every picture is an own drawing that paints something at the size of a toolbar, on both kinds of screen.
TEST(Iconos, EveryPictureIsDrawnAndKept) {
    EXPECT_EQ(IconoDe(u"ventas"_qs).cacheKey(), IconoDe(u"ventas"_qs).cacheKey());
    EXPECT_TRUE(IconoDe(u"noexiste"_qs).isNull());
    const QStringList archivos = QDir(u":/iconos"_qs).entryList();
    EXPECT_GE(archivos.size(), 45);
    for (const QString &archivo : archivos) {
        const QImage imagen = IconoDe(archivo.chopped(4)).pixmap(QSize(24, 24), 2.0).toImage();
        ASSERT_EQ(imagen.size(), QSize(48, 48)) << archivo.toStdString();
        int pintados = 0;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x)
                pintados += qAlpha(imagen.pixel(x, y)) > 128 ? 1 : 0;
        EXPECT_GT(pintados, 40) << archivo.toStdString();
    }
}

} // namespace
} // namespace tarvo
