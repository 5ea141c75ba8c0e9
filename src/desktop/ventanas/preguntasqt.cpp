#include "desktop/ventanas/preguntasqt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tarvo {

namespace {

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

void Preparar(QMessageBox &caja, const QString &texto, Icono icono) {
    caja.setWindowTitle(QStringLiteral("Tarvo"));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(texto);
    caja.setIcon(IconoDeCaja(icono));
}

} // namespace

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

} // namespace tarvo
