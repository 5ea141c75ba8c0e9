// The empty database files: tables, columns and the rows that every file has from the start.
#pragma once

#include <QString>

namespace tarvo {

// Makes the five files in the folder `carpeta`, which holds none of them, and brings them to the disk. Throws
// ErrorDatos(kAccesoRuta).
void CrearPlantillas(const QString &carpeta);

// The SQL that makes the empty data file `archivo` ("ventas.mdb").
QString EsquemaDe(const QString &archivo);

// Brings a file, or the entries of a folder, to the disk. Throws ErrorDatos(kAccesoRuta).
void Sincronizar(const QString &ruta);

} // namespace tarvo
