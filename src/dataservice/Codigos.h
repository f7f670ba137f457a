#pragma once

#include <QString>

/// Codes on which the client and the data service agree.

/// A language; its number is what the contract takes as `idioma`, and the offset of its texts.
enum class Idioma : qint16 { Castellano = 0, Euskera = 10000 };

constexpr qint16 desplazamiento(Idioma idioma)
{
    return static_cast<qint16>(idioma);
}

/// The language behind a number of the contract: anything but 0 is Basque.
constexpr Idioma idiomaDe(qint16 desplazamiento)
{
    return desplazamiento == 0 ? Idioma::Castellano : Idioma::Euskera;
}

/// The home province of the treasury: its municipalities are chosen by code.
inline constexpr qint32 ProvinciaPropia = 20;
inline constexpr QLatin1StringView CodigoProvinciaPropia("20");
inline constexpr QLatin1StringView NombreProvinciaPropia("VARLENDA");
inline constexpr qint32 Provincias = 52; ///< their codes are 1 to 52

/// Codes of a return's header.
inline constexpr quint8 PeriodicidadMensual = 1;
inline constexpr quint8 PeriodicidadAnual = 2;
inline constexpr quint8 Tipologia430 = 1;
inline constexpr quint8 Tipologia480 = 2;
inline constexpr quint8 PeriodoAnual = 12; ///< period under which an annual return is stored
inline constexpr quint8 UltimoMes = 12;
inline constexpr QLatin1StringView Modelo430("430");
inline constexpr QLatin1StringView Modelo480("480");

/// The largest amount: 13 integer digits and 2 decimals, in cents; beyond it a double is no exact
/// figure any more.
inline constexpr double ImporteMaximo = 999'999'999'999'999.0;

/// The rules of a declarant, by the code that says which one is broken (ValidarDatosDeclarante).
enum class Regla : qint16 {
    Ninguna,
    Dni,
    Nombre,
    Domicilio,
    Provincia,
    PostalDeOtraProvincia,
    PostalCincoCifras,
    PostalTresUltimas,
    PostalCero,
    CodigoMunicipio,
    Municipio,
    TelefonoNueveCifras,
    Telefono,
    // Of an import only: the codes have to exist, and the number to be one.
    Via,
    ProvinciaDesconocida,
    MunicipioDesconocido,
    Numero,
};

/// What GuardarDeclarante answers.
enum class Guardado : qint16 { Hecho, AltaDniExiste, CambioDniExiste, NoValido };

/// What is wrong with the header of a new return (ValidarDatosComunes).
enum class ReglaCabecera : qint16 { Ninguna, Ejercicio, Periodo, Modelo, Fuera, Existe };

/// What is wrong with the figures of a return (ValidarDatos430, ValidarDatos480).
enum class Regla430 : qint16 { Ninguna, BaseRectificada, CuotaRectificada };
enum class Regla480 : qint16 { Ninguna, TotalNoExento = 2 };
