#pragma once

#include "core/Textos.h"
#include "declarants/cDecDatos.h"

#include <array>
#include <variant>

/// The boxes of the declarant form, in the order of the keyboard, as one table.
namespace campos {

enum Campo {
    DNI,
    NOMBRE,
    VIA,
    VIAAUX,
    DOMICILIO,
    NUMERO,
    LETRA,
    ESCALERA,
    PISO,
    MANO,
    CODPROV,
    NOMPROV,
    CODPOS,
    CODMUN,
    NOMMUN,
    TELEFONO,
    NUM430,
    NUM480,
    Total
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
};
/// monostate: a box that shows something that is no property of the record.
using Propiedad = std::variant<std::monostate, Texto, Numero, Contador>;

/// How a value is shown, and what of it the record holds.
enum class Imagen {
    Tal, ///< as it is
    Dos, ///< two digits, "01"
    Cinco, ///< five digits, "01005"
    Municipio, ///< shown without zeros in front, three digits in the record
    Entero, ///< without zeros in front, zero is empty
    Miles, ///< grouped thousands
};

struct Definicion
{
    QStringView control;
    Msj etiqueta; ///< text of its label, and its name for a screen reader
    bool conEtiqueta; ///< a label of its own, called "lbl" and the rest of the control's name
    int limite;
    Imagen imagen;
    Propiedad propiedad;
    int validacion = -1; ///< element of RegValidacion
};

extern const std::array<Definicion, Total> tabla;

/// What the box shows.
QString presentar(Campo campo, const cDecDatos &datos);
/// Takes what was typed; false when the record holds that already.
bool tomar(Campo campo, cDecDatos &datos, const QString &texto);
/// What the record would hold of a typed text.
QString valor(Campo campo, const QString &texto);
/// The box of an element of RegValidacion.
Campo deValidacion(int elemento);

bool soloCifras(Campo campo);

} // namespace campos
