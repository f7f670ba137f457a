#include "printing/Piezas.h"

#include "printing/cImOf.h"

#include <algorithm>

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

void hueco(Lienzo &lienzo, const Caja &caja, const Par &etiqueta)
{
    lienzo.blanca(caja);
    parEnLinea(lienzo, {caja.x + 1.5, caja.y + 0.7, caja.ancho - 3, 3.2}, etiqueta, EstiloEtiqueta);
}

namespace {

/// How much of the mark's colour covers what is under it.
constexpr QRgb Opacidad = 0x58000000;
constexpr QRgb OpacidadClara = 0x28000000;

struct Marca
{
    QStringView copia;
    QStringView euskera;
    QStringView castellano;
    QRgb color;
    double puntos;
};

constexpr Marca Marcas[] = {
    {CopiaAdministracion, u"ADMINISTRAZIOARENTZAKO ALEA", u"EJEMPLAR PARA LA ADMINISTRACIÓN",
     0x1f4e8c, 12},
    {CopiaInteresado, u"INTERESDUNARENTZAKO ALEA", u"EJEMPLAR PARA EL INTERESADO", 0x1c7a3e, 12},
    {CopiaBorrador, u"ZIRRIBORROA", u"BORRADOR", 0xb02318, 21},
};

void sello(QPainter &pintor, const QRectF &lugar, const QColor &color)
{
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(color, 1));
    pintor.drawRoundedRect(lugar.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    pintor.setPen(QPen(color, 0.3));
    pintor.drawRoundedRect(lugar.adjusted(1.8, 1.8, -1.8, -1.8), 2, 2);
}

} // namespace

/// Stamps the mark of a copy at its place on the page, translucent, over what is there.
static void dibujarMarca(Lienzo &lienzo, QStringView copia, BajoLaMarca bajo)
{
    const auto marca = std::ranges::find(Marcas, copia, &Marca::copia);
    if (marca == std::end(Marcas))
        return;
    const QRgb color
        = (bajo == BajoLaMarca::Cifras ? OpacidadClara : Opacidad) | (marca->color & 0x00ffffff);
    lienzo.seccion(0);
    sello(lienzo.pintor(), CajaMarca.rect(), QColor::fromRgba(color));
    lienzo.letra({Letra::Arial, marca->puntos, true, color});
    const Caja dentro = CajaMarca.dentro(4, 3.5);
    const double mitad = dentro.alto / 2;
    lienzo.texto({dentro.x, dentro.y, dentro.ancho, mitad}, marca->euskera.toString(),
                 Qt::AlignHCenter);
    lienzo.texto({dentro.x, dentro.y + mitad, dentro.ancho, mitad}, marca->castellano.toString(),
                 Qt::AlignHCenter);
}

void dibujarPartes(QPainter &pintor, std::span<const Parte> partes, const ValoresImpreso &impreso,
                   QStringView copia, BajoLaMarca bajo)
{
    Lienzo lienzo(pintor);
    for (const Parte &parte : partes) {
        lienzo.seccion(parte.arriba);
        parte.dibujar(lienzo, impreso);
    }
    dibujarMarca(lienzo, copia, bajo);
}

} // namespace impreso
