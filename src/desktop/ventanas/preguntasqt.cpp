#include "desktop/ventanas/preguntasqt.h"

#include "desktop/ventanas/filtrocampos.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

namespace tarvo {

namespace {

constexpr auto kMarcaPregunta = "pregunta";

QMessageBox::Icon IconoDeCaja(Icono icono) {
    switch (icono) {
    case Icono::Informacion:
        return QMessageBox::Information;
    case Icono::Pregunta:
        return QMessageBox::Question;
    case Icono::Critico:
        return QMessageBox::Critical;
    case Icono::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

// A long path must not make the box larger than the screen: the middle of a long text is left out, and a word
// that is too long for a line can be broken.
QString ParaCaja(const QString &texto) {
    constexpr qsizetype kComienzo = 250;
    constexpr qsizetype kFinal = 350; // what is asked stands there
    constexpr int kPalabra = 40;
    constexpr char16_t kCorte = 0x200B;
    const bool cabe = texto.size() <= kComienzo + kFinal;
    QString cortado;
    int seguidas = 0;
    for (const QChar letra : cabe ? texto : texto.left(kComienzo) + QChar(u'…') + texto.right(kFinal)) {
        seguidas = letra.isSpace() ? 0 : seguidas + 1;
        if (seguidas > kPalabra && !letra.isLowSurrogate()) {
            cortado += QChar(kCorte);
            seguidas = 1;
        }
        cortado += letra;
    }
    return cortado;
}

void Preparar(QMessageBox &caja, const QString &texto, Icono icono) {
    new FiltroCampos(&caja); // no scan answers it
    caja.setProperty(kMarcaPregunta, true);
    caja.setWindowTitle(QStringLiteral("Tarvo"));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(ParaCaja(texto));
    caja.setIcon(IconoDeCaja(icono));
}

// "Facturas|*.kzd" as the dialog wants it: "Facturas (*.kzd)".
QStringList FiltrosDeDialogo(const QString &filtro) {
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        const QString patrones = QString(partes[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        filtros << QStringLiteral("%1 (%2)").arg(partes[i], patrones);
    }
    return filtros;
}

// "kzd" of "Facturas (*.kzd)".
QString Terminacion(const QString &filtro) {
    return filtro.section(QStringLiteral("(*."), 1).section(QLatin1Char(')'), 0, 0);
}

void PrepararArchivo(QFileDialog &dialogo, const PedidoRuta &pedido) {
    const QStringList filtros = FiltrosDeDialogo(pedido.filtro);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setNameFilters(filtros);
    if (pedido.para != PedidoRuta::Para::Guardar)
        return;
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setDefaultSuffix(Terminacion(filtros.value(0)));
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
                     [&dialogo, filtros](const QString &elegido) { // it may come without its pattern
                         for (const QString &filtro : filtros)
                             if (filtro.startsWith(elegido))
                                 dialogo.setDefaultSuffix(Terminacion(filtro));
                     });
}

// Names as wide as there is room, sizes and dates whole; the kind is told by the picture.
void AjustarColumnas(const QFileDialog &dialogo) {
    constexpr int kTipo = 2;
    const auto *const arbol = dialogo.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (arbol == nullptr)
        return;
    arbol->header()->setSectionHidden(kTipo, true);
    arbol->header()->setStretchLastSection(false);
    arbol->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    arbol->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

// The dialog takes double quotes for the ends of several names; here they are letters of one.
QString Elegida(const QFileDialog &dialogo) {
    const auto *const nombre = dialogo.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (nombre == nullptr || !nombre->text().contains(u'"'))
        return dialogo.selectedFiles().value(0);
    const QString ruta = dialogo.directory().absoluteFilePath(nombre->text());
    const QString terminacion = dialogo.defaultSuffix();
    const bool completa = terminacion.isEmpty() || QFileInfo(ruta).fileName().contains(u'.');
    return completa ? ruta : ruta + u'.' + terminacion;
}

} // namespace

bool EsPregunta(const QWidget *ventana) {
    return ventana != nullptr && ventana->property(kMarcaPregunta).toBool();
}

Respuesta PreguntasQt::Preguntar(const QString &texto, Respuesta preseleccionada) {
    QMessageBox caja(QApplication::activeWindow());
    Preparar(caja, texto, Icono::Pregunta);
    QPushButton *si = caja.addButton(QStringLiteral("Sí"), QMessageBox::YesRole);
    QPushButton *no = caja.addButton(QStringLiteral("No"), QMessageBox::NoRole);
    caja.setDefaultButton(preseleccionada == Respuesta::Si ? si : no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si ? Respuesta::Si : Respuesta::No;
}

void PreguntasQt::Mostrar(const QString &texto, Icono icono) {
    QMessageBox caja(QApplication::activeWindow());
    Preparar(caja, texto, icono);
    QPushButton *aceptar = caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    caja.setDefaultButton(aceptar);
    caja.setEscapeButton(aceptar);
    caja.exec();
}

QString PreguntasQt::ElegirRuta(const PedidoRuta &pedido) {
    QFileDialog dialogo(QApplication::activeWindow(), pedido.titulo, pedido.carpeta);
    dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails |
                       QFileDialog::DontConfirmOverwrite);
    if (pedido.para == PedidoRuta::Para::Carpeta) {
        dialogo.setFileMode(QFileDialog::Directory);
        dialogo.setOption(QFileDialog::ShowDirsOnly);
    } else {
        PrepararArchivo(dialogo, pedido);
    }
    AjustarColumnas(dialogo);
    return dialogo.exec() == QDialog::Accepted ? Elegida(dialogo) : QString();
}

} // namespace tarvo
