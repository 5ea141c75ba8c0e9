// How the date and the hour of a movement are compared and shown, worked out on UTF-8 bytes.
//
// A file may hold dates and hours of any form. One that reads as a date or an hour is brought into its one
// form, so that texts compare as moments do; one that doesn't stays as it stands.
#pragma once

#include <string>
#include <string_view>

namespace tarvo {

// "22/11/2026" as "2026/11/22". Day, month and a year of four digits, in this order or year first, between
// equal "/", "-" or "."; a day that its month doesn't have is no date. The result lies in `bufer` or is
// `fecha` itself.
std::string_view FechaOrden(std::string_view fecha, std::string &bufer);

// "9:05" and "09:05:59" as "09:05"; "25:00" is no hour. The result lies in `bufer` or in `hora` itself.
std::string_view HoraMovimiento(std::string_view hora, std::string &bufer);

} // namespace tarvo
