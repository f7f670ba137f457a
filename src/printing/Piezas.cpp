#include "printing/Piezas.h"

using namespace Qt::StringLiterals;

namespace impreso {

static constexpr double Holgura = 1; ///< between a frame and the text inside, sideways
static constexpr double AnchoNumero = 5;

static constexpr double altoEtiqueta(Forma forma)
{
    return forma == Forma::UnaLinea ? 2.7 : 5.6;
}

static constexpr double sobreEtiqueta(Forma forma)
{
    return forma == Forma::UnaLinea ? 0.5 : 0.8;
}

static constexpr Estilo estiloEtiqueta(Forma forma)
{
    return EstiloEtiqueta.de(forma == Forma::UnaLinea ? 6 : 7);
}

static Caja cajaEtiqueta(const Campo &campo, Forma forma)
{
    const auto &c = campo.celda;
    return {c.x + Holgura, c.y + sobreEtiqueta(forma), c.ancho - 2 * Holgura, altoEtiqueta(forma)};
}

Caja cajaValor(const Campo &campo, Forma forma)
{
    const auto &c = campo.celda;
    const double arriba = sobreEtiqueta(forma) + altoEtiqueta(forma) + 0.2;
    return {c.x + Holgura, c.y + arriba, c.ancho - 2 * Holgura, c.alto - arriba - Holgura};
}

double parEnLinea(Lienzo &lienzo, const Caja &caja, const Par &par, const Estilo &estilo,
                  Qt::AlignmentFlag alineacion)
{
    const QString euskera = par.euskera.toString() + u' ';
    const QString castellano = par.castellano.toString();
    lienzo.letra(estilo);
    const double primero = lienzo.anchoTexto(euskera);
    lienzo.letra(estilo.normal());
    const double total = primero + lienzo.anchoTexto(castellano);
    const double encogido = total > caja.ancho ? caja.ancho / total : 1;
    const double ancho = total * encogido;

    double x = caja.x;
    if (alineacion == Qt::AlignHCenter)
        x += (caja.ancho - ancho) / 2;
    else if (alineacion == Qt::AlignRight)
        x += caja.ancho - ancho;
    const double corte = primero * encogido;
    const Estilo ajustado = estilo.de(estilo.puntos * encogido);
    lienzo.letra(ajustado);
    lienzo.texto({x, caja.y, caja.ancho, caja.alto}, par.euskera.toString());
    lienzo.letra(ajustado.normal());
    lienzo.texto({x + corte, caja.y, caja.ancho, caja.alto}, castellano);
    return ancho;
}

void parApilado(Lienzo &lienzo, const Caja &caja, const Par &par, const Estilo &estilo,
                Qt::AlignmentFlag alineacion)
{
    const double alto = caja.alto / 2;
    lienzo.letra(estilo);
    lienzo.texto({caja.x, caja.y, caja.ancho, alto}, par.euskera.toString(), alineacion);
    lienzo.letra(estilo.normal());
    lienzo.texto({caja.x, caja.y + alto, caja.ancho, alto}, par.castellano.toString(), alineacion);
}

void bloque(Lienzo &lienzo, const Caja &caja)
{
    lienzo.fondo(caja, Tinta::Fondo);
    lienzo.marco(caja, Trazo::Grueso);
}

void campos(Lienzo &lienzo, std::span<const Campo> tabla, Forma forma)
{
    const auto dibujarPar = [&](const Campo &campo) {
        const Caja caja = cajaEtiqueta(campo, forma);
        if (forma == Forma::UnaLinea)
            parEnLinea(lienzo, caja, campo.etiqueta, estiloEtiqueta(forma));
        else
            parApilado(lienzo, caja, campo.etiqueta, estiloEtiqueta(forma));
    };
    for (const Campo &campo : tabla) {
        lienzo.blanca(cajaValor(campo, forma));
        dibujarPar(campo);
    }
}

void valores(Lienzo &lienzo, std::span<const Campo> tabla, Forma forma,
             const ValoresImpreso &impreso, double dy)
{
    lienzo.letra(EstiloValor.de(forma == Forma::UnaLinea ? 9 : 10));
    for (const Campo &campo : tabla)
        lienzo.texto(cajaValor(campo, forma).bajada(dy).dentro(Holgura, 0),
                     impreso.texto(campo.valor));
}

Caja cajaNumero(const Caja &caja)
{
    return {caja.x, caja.y, AnchoNumero, caja.alto};
}

Caja cajaImporte(const Caja &caja)
{
    return Caja{caja.x + AnchoNumero, caja.y, caja.ancho - AnchoNumero, caja.alto}.dentro(0.7, 0.5);
}

void casillaVacia(Lienzo &lienzo, const Caja &caja, const QString &numero)
{
    lienzo.blanca(cajaImporte(caja));
    lienzo.letra(Estilo{Letra::Arial, 6, false, Tinta::Oscura});
    lienzo.texto(cajaNumero(caja), numero, Qt::AlignHCenter);
}

void importe(Lienzo &lienzo, const Caja &caja, const QString &texto)
{
    lienzo.texto(cajaImporte(caja).dentro(Holgura, 0), texto, Qt::AlignRight);
}

/// The sign and a space in front of it.
static double anchoSigno(const Lienzo &lienzo)
{
    return lienzo.anchoTexto(u" %"_s) + Holgura;
}

void signoTipo(Lienzo &lienzo, const Caja &caja)
{
    const Caja dentro = cajaImporte(caja);
    lienzo.texto(dentro.dentro(Holgura, 0), u"%"_s, Qt::AlignRight);
}

void tipo(Lienzo &lienzo, const Caja &caja, const QString &texto)
{
    const Caja dentro = cajaImporte(caja);
    const double ancho = dentro.ancho - Holgura - anchoSigno(lienzo);
    lienzo.texto({dentro.x + Holgura, dentro.y, ancho, dentro.alto}, texto, Qt::AlignRight);
}

} // namespace impreso
