#include "printing/Clases480Impreso.h"

#include "core/Textos.h"
#include "printing/Tablas480.h"

using namespace Qt::StringLiterals;

namespace impreso {
namespace {

using namespace Impreso480;

constexpr double Sangria = 2; ///< of a label from the frame
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

void cabeza(Lienzo &lienzo)
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

} // namespace

void dibujarClases(Lienzo &lienzo, const ValoresImpreso &)
{
    lienzo.fondo(CajaClases, Tinta::Fondo);
    cabeza(lienzo);
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

void dibujarValoresClases(Lienzo &lienzo, const ValoresImpreso &impreso)
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

} // namespace impreso
