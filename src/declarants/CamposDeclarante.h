#pragma once

#include "declarants/cDecDatos.h"

#include <array>
#include <variant>

/// The fields of a declarant as one table, in the order of the record and of the exchange file. The
/// form, the command line and the exchange read it.
namespace campos {

using Campo = RegDeclarante::Campo; ///< a field is called by its element of the full record

enum class Clase {
    Texto, ///< in capitals
    Numero, ///< digits, zero is none
    Codigo, ///< digits of a fixed width, held as text
    Telefono, ///< digits, held as text
    Contador, ///< counted by the program, never typed
};

struct Texto
{
    QString (cDecDatos::*leer)() const;
    void (cDecDatos::*escribir)(const QString &);
};
struct Numero
{
    qint32 (cDecDatos::*leer)() const;
    void (cDecDatos::*escribir)(qint32);
};
struct Contador
{
    double (cDecDatos::*leer)() const;
    void (cDecDatos::*escribir)(double);
};
using Propiedad = std::variant<Texto, Numero, Contador>;

struct Definicion
{
    Campo campo;
    QStringView nombre; ///< of the property
    QStringView enFichero; ///< as the description of the exchange file calls it
    Clase clase;
    int ancho; ///< characters that can be typed
    int columna; ///< where it starts in a line of the exchange file, from 1
    int anchoFichero; ///< and how many characters it has there
    Propiedad propiedad;
    int validacion = -1; ///< element of RegValidacion; -1 none
};

inline constexpr int Cuantos = RegDeclarante::Total - 1; ///< without the key
inline constexpr int AnchoLinea = 153; ///< characters of a line of the exchange file

extern const std::array<Definicion, Cuantos> tabla;

const Definicion &definicion(Campo campo);
/// The field of an element of RegValidacion.
const Definicion &deValidacion(int elemento);
/// Whether only digits can stand in it.
bool soloCifras(Clase clase);

/// The property as text; a number without zeros in front.
QString leer(Campo campo, const cDecDatos &datos);
/// Writes the property of a text in the form that `valor` gives.
void escribir(Campo campo, cDecDatos &datos, const QString &valor);
/// What the record holds of a text that was typed: capitals, codes filled up with zeros, a number
/// or a municipality that is all zeros is empty.
QString valor(Campo campo, const QString &texto);
/// Takes a typed text; false when the record holds that already.
bool tomar(Campo campo, cDecDatos &datos, const QString &texto);

} // namespace campos
