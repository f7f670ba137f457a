#include "core/Textos.h"
#include "printing/Impreso.h"
#include "printing/Tablas480.h"

using namespace Qt::StringLiterals;

namespace impreso {
namespace {

using namespace Impreso480;

constexpr double Sangria = 2; ///< of a label from the frame
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

constexpr Estilo EstiloClase = EstiloEtiqueta.de(7.3);
constexpr Estilo EstiloBajoGrupo = EstiloEtiqueta.de(6.8);

/// A label of the message table in both languages.
struct ParTexto
{
    QString euskera;
    QString castellano;

    explicit ParTexto(Msj cual)
        : euskera(msj(cual, Idioma::Euskera) + u" /"_s)
        , castellano(msj(cual, Idioma::Castellano))
    {
    }
    operator Par() const { return {euskera, castellano}; }
};

QString numero(int casilla)
{
    return QString::number(casilla).rightJustified(2, u'0');
}

void cabezaClases(Lienzo &lienzo)
{
    lienzo.fondo({10, 0, AnchoUtil, AltoCabeza}, Tinta::Sombra);
    constexpr double alto = (AltoCabeza - 1) / 4;
    for (int indice = 0; const Cabeza &texto : Cabezas) {
        for (int i = 0; const QStringView linea : texto.lineas) {
            const Estilo &estilo = EstiloEtiqueta;
            lienzo.letra(i < 2 ? estilo : estilo.normal());
            lienzo.texto({columna(indice) + 1, 0.5 + i++ * alto, AnchoColumna - 2, alto},
                         linea.toString(), Qt::AlignHCenter);
        }
        ++indice;
    }
}

/// The label of a row, then dots up to its first box.
void etiqueta(Lienzo &lienzo, const Caja &fila, double x, const Par &par, const Estilo &estilo)
{
    const double ancho
        = parEnLinea(lienzo, {x, fila.y, PrimeraColumna - x - 1, fila.alto}, par, estilo);
    lienzo.puntos(x + ancho + 1.5, PrimeraColumna - 0.5, fila.y + fila.alto / 2 + 0.9);
}

/// The heading that two rows share, at their left.
void grupo(Lienzo &lienzo, int fila, const Par &par)
{
    const Caja primera = cajaFila(fila);
    parApilado(lienzo, {10 + Sangria, primera.y + 2, SangriaGrupo - 2 * Sangria, 2 * AltoFila - 4},
               par, EstiloClase.de(7));
    const double x = 10 + SangriaGrupo - 1;
    lienzo.linea(x, primera.y + 0.8, x, primera.y + 2 * AltoFila - 0.8);
}

void filaClase(Lienzo &lienzo, int fila)
{
    const Clase480 &clase = Clases480.at(static_cast<size_t>(fila));
    const bool primeraDelGrupo = clase.grupo
        && (fila == 0 || Clases480.at(static_cast<size_t>(fila) - 1).grupo != clase.grupo);
    const bool sigueGrupo = clase.grupo && !primeraDelGrupo;
    if (primeraDelGrupo)
        grupo(lienzo, fila, ParTexto(*clase.grupo));
    const double x = 10 + (clase.grupo ? SangriaGrupo : Sangria);
    etiqueta(lienzo, cajaFila(fila), x, ParTexto(clase.etiqueta),
             clase.grupo ? EstiloBajoGrupo : EstiloClase);
    lienzo.linea(sigueGrupo ? x - 1 : 10, cajaFila(fila).y, MargenDerecho, cajaFila(fila).y);
}

void clases(Lienzo &lienzo, const ValoresImpreso &)
{
    lienzo.fondo(CajaClases, Tinta::Fondo);
    cabezaClases(lienzo);
    lienzo.fondo(cajaFila(FilaTotales), Tinta::Sombra);
    for (int fila = 0; fila < Reg480::Clases; ++fila)
        filaClase(lienzo, fila);
    etiqueta(lienzo, cajaFila(FilaTotales), 10 + Sangria, Totales, EstiloClase.de(9));
    for (int fila = 0; fila <= FilaTotales; ++fila)
        for (int indice = 0; indice < 3; ++indice)
            casillaVacia(lienzo, cajaClase(fila, indice), numero(Reg480::casilla(fila, indice)));
    for (int indice = 0; indice < 3; ++indice)
        lienzo.linea(columna(indice), 0, columna(indice), CajaClases.alto, Trazo::Medio);
    lienzo.linea(10, AltoCabeza, MargenDerecho, AltoCabeza, Trazo::Medio);
    lienzo.linea(10, cajaFila(FilaTotales).y, MargenDerecho, cajaFila(FilaTotales).y, Trazo::Medio);
    lienzo.marco(CajaClases, Trazo::Grueso);
}

void valoresClases(Lienzo &lienzo, const ValoresImpreso &impreso)
{
    for (int fila = 0; fila <= FilaTotales; ++fila) {
        Estilo estilo = EstiloValor.de(8.5);
        estilo.negrita = fila == FilaTotales;
        lienzo.letra(estilo);
        for (int indice = 0; indice < 3; ++indice)
            importe(lienzo, cajaClase(fila, indice),
                    impreso.casilla(Reg480::casilla(fila, indice)));
    }
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
    hueco(lienzo, CajaSinadura, EtiquetaFirma);
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

constexpr Parte Partes[] = {
    {Seccion::Cabecera, cabecera},
    {Seccion::Cabecera, periodo},
    {Seccion::Declarante, declarante},
    {Seccion::Declarante, valoresDeclarante},
    {Seccion::Postal, postal},
    {Seccion::Clases, clases},
    {Seccion::Clases, valoresClases},
    {Seccion::Liquidacion, liquidacion},
    {Seccion::Liquidacion, valoresLiquidacion},
};

} // namespace

void dibujar480(QPainter &pintor, const ValoresImpreso &impreso, QStringView copia)
{
    dibujarPartes(pintor, Partes, impreso, copia, BajoLaMarca::Cifras);
}

} // namespace impreso
