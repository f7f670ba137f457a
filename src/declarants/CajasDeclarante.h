#pragma once

#include "core/Textos.h"
#include "declarants/CamposDeclarante.h"

/// The boxes of the declarant form, in the order of the keyboard, as one table. What a box holds is
/// in the table of the declarant's fields.
namespace cajas {

enum Cual {
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

struct Definicion
{
    QStringView control;
    Msj etiqueta; ///< text of its label, and its name for a screen reader
    bool conEtiqueta; ///< a label of its own, called "lbl" and the rest of the control's name
    campos::Campo campo = RegDeclarante::CSCO; ///< CSCO: shows a name that is no field
    int letras = 0; ///< characters that it can hold, where those are not the field's width
};

extern const std::array<Definicion, Total> tabla;

int limite(Cual caja);
bool soloCifras(Cual caja);
/// What the box shows.
QString presentar(Cual caja, const cDecDatos &datos);
/// Takes what was typed; false when the record holds that already.
bool tomar(Cual caja, cDecDatos &datos, const QString &texto);
/// The box of an element of RegValidacion.
Cual deValidacion(int elemento);

} // namespace cajas
