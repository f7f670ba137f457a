#include "printing/Impreso480.h"

#include "core/Periodos.h"
#include "printing/Clases480Impreso.h"
#include "printing/MarcaCopia.h"
#include "printing/Membrete.h"
#include "printing/Tablas480.h"

namespace impreso {
namespace {

using namespace Impreso480;

constexpr double Sangria = 2;
constexpr double AnchoRotulo = PrimeraColumna - 10 - Sangria - 1;

void cabecera(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    dibujarMembrete(lienzo, impreso, Modelo480);
    lienzo.linea(MargenIzquierdo, 0, MargenDerecho, 0, Trazo::Grueso);
    lienzo.fondo(CajaTitulo, Tinta::Oscura);
    parApilado(lienzo, CajaTitulo.dentro(2, 6), Titulo,
               Estilo{Letra::Times, 11, true, Tinta::Blanco}, Qt::AlignHCenter);
    bloque(lienzo, CajaTiempo);
    campos(lienzo, Tiempo, Forma::UnaLinea);
    valores(lienzo, {&Tiempo[0], 1}, Forma::UnaLinea, impreso);
}

void periodo(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    valores(lienzo, {&Tiempo[1], 1}, Forma::UnaLinea, impreso);
}

void declarante(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaDeclarante);
    campos(lienzo, Impreso480::Declarante, Forma::UnaLinea);
}

void valoresDeclarante(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    valores(lienzo, Impreso480::Declarante, Forma::UnaLinea, impreso);
}

void postal(Lienzo &lienzo, const ValoresImpreso &)
{
    bloque(lienzo, CajaPostal);
    campos(lienzo, Impreso480::Postal, Forma::UnaLinea);
}

void cabezaLiquidacion(Lienzo &lienzo)
{
    lienzo.fondo({10, 0, AnchoUtil, AltoCabezaLiquidacion}, Tinta::Sombra);
    for (int indice = 0; const Par &par : CabezasLiquidacion)
        parEnLinea(lienzo, {columna(indice++) + 1, 0, AnchoColumna - 2, AltoCabezaLiquidacion}, par,
                   EstiloEtiqueta, Qt::AlignHCenter);
}

void rotulos(Lienzo &lienzo)
{
    const auto rotulo = [&](const Caja &banda, double alto) {
        return Caja{10 + Sangria, banda.y + (banda.alto - alto) / 2, AnchoRotulo, alto};
    };
    const Caja dos{10, cajaBanda(0).y, AnchoUtil, 2 * AltoBanda};
    parApilado(lienzo, rotulo(dos, 7), Operaciones, EstiloEtiqueta.de(8));
    const Caja linea = rotulo(cajaBanda(2), 6);
    parEnLinea(lienzo, {linea.x, linea.y, linea.ancho, 3}, Rectificacion, EstiloEtiqueta.de(7.5));
    lienzo.letra(EstiloEtiqueta.de(7.5).normal());
    lienzo.texto({linea.x, linea.y + 3, linea.ancho, 3}, RectificacionSigue.toString());
    lienzo.fondo(cajaBanda(FilaResultado), Tinta::Sombra);
    parApilado(lienzo, rotulo(cajaBanda(FilaResultado), 7), Resultado, EstiloEtiqueta.de(9));
}

void rayado(Lienzo &lienzo)
{
    for (int fila = 1; fila < FilaResultado; ++fila)
        lienzo.linea(fila == 1 ? PrimeraColumna : 10, cajaBanda(fila).y, MargenDerecho,
                     cajaBanda(fila).y);
    const double resultado = cajaBanda(FilaResultado).y;
    for (int indice = 0; indice < 3; ++indice)
        lienzo.linea(columna(indice), 0, columna(indice),
                     indice < 2 ? resultado : CajaLiquidacion.alto, Trazo::Medio);
    lienzo.linea(10, cajaBanda(0).y, MargenDerecho, cajaBanda(0).y, Trazo::Medio);
    lienzo.linea(10, resultado, MargenDerecho, resultado, Trazo::Medio);
    lienzo.marco(CajaLiquidacion, Trazo::Grueso);
}

void liquidacion(Lienzo &lienzo, const ValoresImpreso &)
{
    lienzo.fondo(CajaLiquidacion, Tinta::Fondo);
    cabezaLiquidacion(lienzo);
    rotulos(lienzo);
    for (const auto &casilla : CasillasLiquidacion) {
        casillaVacia(lienzo, cajaCasilla(casilla), QString::number(casilla.numero));
        lienzo.letra(EstiloValor);
        if (casilla.esTipo)
            signoTipo(lienzo, cajaCasilla(casilla));
    }
    rayado(lienzo);
    bloque(lienzo, CajaFirma);
    campos(lienzo, {&Fecha, 1}, Forma::UnaLinea);
    lienzo.blanca(CajaSinadura);
    parEnLinea(lienzo, {CajaSinadura.x + 1.5, CajaSinadura.y + 0.7, CajaSinadura.ancho - 3, 3.2},
               EtiquetaFirma, EstiloEtiqueta);
}

void valoresLiquidacion(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    for (const auto &casilla : CasillasLiquidacion) {
        Estilo estilo = EstiloValor;
        estilo.negrita = casilla.fila == FilaResultado;
        lienzo.letra(estilo);
        const auto poner = casilla.esTipo ? tipo : importe;
        poner(lienzo, cajaCasilla(casilla), impreso.casilla(casilla.numero));
    }
    valores(lienzo, {&Fecha, 1}, Forma::UnaLinea, impreso);
}

struct Parte
{
    double arriba;
    void (*dibujar)(Lienzo &, const ValoresImpreso &);
};

constexpr Parte Partes[] = {
    {Seccion::Cabecera, cabecera},
    {Seccion::Cabecera, periodo},
    {Seccion::Declarante, declarante},
    {Seccion::Declarante, valoresDeclarante},
    {Seccion::Postal, postal},
    {Seccion::Clases, dibujarClases},
    {Seccion::Clases, dibujarValoresClases},
    {Seccion::Liquidacion, liquidacion},
    {Seccion::Liquidacion, valoresLiquidacion},
};

} // namespace

void dibujar480(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia)
{
    Lienzo lienzo(pintor);
    for (const Parte &parte : Partes) {
        lienzo.seccion(parte.arriba);
        parte.dibujar(lienzo, impreso);
    }
    dibujarMarca(lienzo, copia);
}

} // namespace impreso
