#include "printing/Listado.h"

#include "core/Textos.h"
#include "printing/Lienzo.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace impreso {

namespace {

constexpr double Cabecera = 12; ///< from the page's top
constexpr double Titulos = 24;
constexpr double Primera = 31; ///< top of the first row
constexpr double AltoFila = 5.5;
constexpr double Pie = 284;
constexpr int FilasPorPagina = static_cast<int>((Pie - 4 - Primera) / AltoFila);
constexpr double Aire = 1.5; ///< between the texts of two columns

} // namespace

int Listado::paginas() const
{
    const auto enteras = (filas.size() + FilasPorPagina - 1) / FilasPorPagina;
    return static_cast<int>(std::max<qsizetype>(enteras, 1));
}

bool Listado::dibujar(QPagedPaintDevice &dispositivo) const
{
    QPainter pintor;
    if (!pintor.begin(&dispositivo))
        return false;
    for (int pagina = 0; pagina < paginas(); ++pagina) {
        if (pagina > 0 && !dispositivo.newPage())
            return false;
        dibujarPagina(pintor, pagina);
    }
    return pintor.end();
}

/// The texts of one line under each other's columns.
static void dibujarLinea(Lienzo &lienzo, const QList<Listado::Columna> &columnas,
                         const QStringList &textos, double y)
{
    double x = MargenIzquierdo;
    for (qsizetype i = 0; i < columnas.size(); ++i) {
        const auto &columna = columnas[i];
        lienzo.texto({x + Aire, y, columna.ancho - 2 * Aire, AltoFila}, textos.value(i),
                     columna.aLaDerecha ? Qt::AlignRight : Qt::AlignLeft);
        x += columna.ancho;
    }
}

void Listado::dibujarPagina(QPainter &pintor, int pagina) const
{
    Lienzo lienzo(pintor);
    const Caja arriba{MargenIzquierdo, Cabecera, AnchoUtil, 8};
    lienzo.letra(EstiloInicial.de(13));
    lienzo.texto(arriba, titulo);
    lienzo.letra(EstiloValor);
    lienzo.texto(arriba, fecha, Qt::AlignRight);

    lienzo.fondo({MargenIzquierdo, Titulos, AnchoUtil, AltoFila}, Tinta::Sombra);
    lienzo.letra(EstiloInicial.de(9));
    QStringList titulos;
    for (const Columna &columna : columnas)
        titulos += columna.titulo;
    dibujarLinea(lienzo, columnas, titulos, Titulos);

    lienzo.letra(EstiloValor);
    const int desde = pagina * FilasPorPagina;
    const int hasta = std::min(desde + FilasPorPagina, static_cast<int>(filas.size()));
    for (int i = desde; i < hasta; ++i) {
        const double y = Primera + (i - desde) * AltoFila;
        dibujarLinea(lienzo, columnas, filas[i], y);
        lienzo.linea(MargenIzquierdo, y + AltoFila, MargenDerecho, y + AltoFila);
    }
    lienzo.texto({MargenIzquierdo, Pie, AnchoUtil, AltoFila},
                 msj(Msj::PaginaListado, QString::number(pagina + 1), QString::number(paginas())),
                 Qt::AlignRight);
}

} // namespace impreso
