// Rows into one table: a prepared INSERT that is run once for each row.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <initializer_list>
#include <string>

namespace tarvo {

class Insercion {
  public:
    Insercion(SQLite::Database &base, const std::string &tabla, std::initializer_list<const char *> columnas)
        : sentencia_(base, Texto(tabla, columnas)) {}

    // The values live until the call ends; they are not copied.
    void Fila(std::initializer_list<const std::string *> valores) {
        int posicion = 0;
        for (const std::string *valor : valores)
            sentencia_.bindNoCopy(++posicion, *valor);
        sentencia_.exec();
        sentencia_.reset();
    }

  private:
    static std::string Texto(const std::string &tabla, std::initializer_list<const char *> columnas) {
        std::string nombres;
        std::string huecos;
        for (const char *columna : columnas) {
            nombres.append(nombres.empty() ? "" : ", ").append(columna);
            huecos.append(huecos.empty() ? "?" : ", ?");
        }
        return "INSERT INTO " + tabla + " (" + nombres + ") VALUES (" + huecos + ")";
    }
    SQLite::Statement sentencia_;
};

} // namespace tarvo
