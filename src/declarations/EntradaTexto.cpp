#include "declarations/EntradaTexto.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarations/RegistroDeclaracion.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"

ImporteDado importeDado(const QString &texto)
{
    if (texto.trimmed().isEmpty())
        return {0, msj(Msj::ImporteIlegible, texto)};
    const ImporteLeido leido = leerImporte(texto);
    return {leido.centimos, leido.motivo(texto)};
}

/// How each amount is written, and the total that it goes into.
struct Escritura
{
    void (cDatos430::*escribir)(double);
    Msj total;
};

static constexpr Escritura Escrituras[] = {
    {&cDatos430::BASELIQ, Msj::BaseImponible},
    {&cDatos430::BASEREC, Msj::BaseImponible},
    {&cDatos430::CUOTAREC, Msj::Cuota},
};

QString tomarDato(Dato430 cual, const QString &texto)
{
    const ImporteDado importe = importeDado(texto);
    if (!importe.motivo.isEmpty())
        return importe.motivo;
    const Escritura &escritura = Escrituras[static_cast<int>(cual)];
    const bool cabe = cambiarSiCabe(unico::la<cDatos430>(), [&](cDatos430 &registro) {
        (registro.*escritura.escribir)(importe.centimos);
    });
    return cabe ? QString() : msj(Msj::ImporteTotalExcedido, msj(escritura.total));
}

static bool caben(const Casillas480 &dadas)
{
    return cambiarSiCabe(unico::la<cDatos480>(), [&](cDatos480 &registro) {
        for (const auto &[numero, centimos] : dadas.asKeyValueRange())
            registro.casilla(*casillaEntrada(numero), centimos);
    });
}

int tomarCasillas(const Casillas480 &dadas)
{
    Casillas480 quedan = dadas;
    int numero = 0;
    while (!caben(quedan)) {
        numero = quedan.lastKey();
        quedan.remove(numero);
    }
    return numero;
}

QString nombreCasilla(int numero)
{
    return QString::number(numero).rightJustified(2, u'0');
}
