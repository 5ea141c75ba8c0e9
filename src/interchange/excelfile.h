// A spreadsheet file: the BIFF2 stream of one worksheet, a begin record, cells, an end record.
//
// Rows and columns are counted from 1 and are unsigned 8-bit numbers, as is the length of a record: what goes
// beyond them raises a DesbordeHoja before anything of the cell is written. A failing device is not told
// here: whoever owns it looks at it afterwards.
#pragma once

#include <QString>

#include <cstdint>

class QIODevice;

namespace tarvo {

// A row or column above 255, a text over 247 characters, a value above 65535.
struct DesbordeHoja {};

class ExcelFile {
  public:
    explicit ExcelFile(QIODevice &salida) : salida_(salida) {}

    void OpenFile();
    // One byte for each character of `value`, in Windows-1252.
    void EWriteString(int row, int col, const QString &value);
    // `value` is 0 to 65535. No export uses it: all cells are texts.
    void EWriteInteger(int row, int col, int value);
    void CloseFile();

  private:
    void Escribir(std::initializer_list<std::uint8_t> bytes);

    QIODevice &salida_;
};

} // namespace tarvo
