#pragma once

#include <QHash>
#include <QString>

#include <array>

class cDatos430;
class cDatos480;

namespace SvrKtComunLib {
class cMiscelaneos;
}

namespace impreso {

/// What is filled in on a form besides the numbered boxes.
enum class Valor {
    Ninguno,
    Nif,
    Nombre,
    Telefono,
    Domicilio,
    Numero,
    Piso,
    Municipio,
    CodigoPostal,
    Provincia,
    Ejercicio,
    Periodo, ///< "URTARRILA / ENERO", "URTEKOA / ANUAL"
    Fecha,
    Importe, ///< amount of the payment slip
};

/// Everything that one form shows, as text ready to be drawn.
struct ValoresImpreso
{
    QString haciendaEuskera; ///< department heading
    QString haciendaCastellano;
    QHash<Valor, QString> textos;
    /// Numbered boxes, by number: 01 to 81 of model 480, lines 1 to 3 of model 430.
    std::array<QString, 82> casillas;

    QString texto(Valor valor) const { return textos.value(valor); }
    const QString &casilla(int numero) const { return casillas.at(static_cast<size_t>(numero)); }
    QString &casilla(int numero) { return casillas.at(static_cast<size_t>(numero)); }
};

/// What the forms show, taken from the session's records: declarant, header, figures and print
/// request. The records are only read.
ValoresImpreso tomarValores430(const cDatos430 &figuras);
ValoresImpreso tomarValores480(const cDatos480 &figuras);

/// Asks the data service for the department's heading in both languages.
void tomarHacienda(ValoresImpreso &impreso, SvrKtComunLib::cMiscelaneos &servicio);

} // namespace impreso
