// Files that the operator names: an invoice layout, the pictures of its logo and of the canvas.
#pragma once

#include <QFile>
#include <QImage>

#include <memory>

namespace tarvo {

// An existing file, open. Throws ErrorDatos: kRutaNoEncontrada when its folder isn't there,
// kArchivoNoEncontrado, kAccesoRuta for a folder or a file that can't be opened.
std::unique_ptr<QFile> AbrirParaLeer(const QString &ruta);

// The picture in a file, whatever the file's name ends in. Throws as AbrirParaLeer, and kImagenInvalida for
// what is no picture or is beyond all measure.
QImage CargarImagen(const QString &ruta);

// The logo of a layout that brings none: 160 x 90 pixels.
QImage LogoIncorporado();

} // namespace tarvo
