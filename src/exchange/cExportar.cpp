#include "exchange/cExportar.h"

#include "core/Servicios.h"
#include "core/Textos.h"

#include <algorithm>

using Elementos = QList<DeclaranteExportable>;

QString cExportar::lblTitulo() const
{
    return msj(Msj::TituloExportar);
}

QString cExportar::lblayuda() const
{
    return msj(Msj::PistaSeleccioneExportar);
}

QString cExportar::lblResultado1() const
{
    return QString::number(NUMCONTRISEL()) + u' ' + msj(Msj::DeclarantesSeleccionados);
}

QString cExportar::lblresultado2() const
{
    return QString::number(NUMCONTRIEXP()) + u' ' + msj(Msj::SeleccionadosExportar);
}

/// Where a declarant goes among the available ones, which are in the order of their places.
int cExportar::posicionDisponible(qint32 csco) const
{
    const Elementos &filas = tabla(Contri).filas();
    const auto lugar = [this](const DeclaranteExportable &e) { return m_lugar.value(e.csco); };
    return static_cast<int>(std::ranges::upper_bound(filas, m_lugar.value(csco), {}, lugar)
                            - filas.begin() + 1);
}

void cExportar::COPIARELEMENTOENTRETABLAS(Tabla origen, int posicion)
{
    const DeclaranteExportable elemento = tabla(origen).ELEMENTO(posicion);
    if (elemento.csco == 0)
        return;
    if (origen == Contri)
        TablaContriExpAÑADIR(elemento);
    else
        TablaContriINSERTAR(posicionDisponible(elemento.csco), elemento);
}

void cExportar::MoverElementos(Tabla origen, const QList<int> &posiciones)
{
    const Tabla destino = origen == Contri ? ContriExp : Contri;
    const Elementos presentes = tabla(destino).filas();
    Elementos quedan;
    Elementos movidos;
    auto siguiente = posiciones.begin();
    for (int posicion = 1; const auto &fila : tabla(origen).filas()) {
        const bool movido = siguiente != posiciones.end() && *siguiente == posicion;
        (movido ? movidos : quedan).append(fila);
        siguiente += movido ? 1 : 0;
        ++posicion;
    }
    Elementos juntos = presentes + movidos;
    if (destino == Contri) {
        const auto lugar = [this](const DeclaranteExportable &e) { return m_lugar.value(e.csco); };
        std::ranges::sort(movidos, {}, lugar);
        std::ranges::merge(presentes, movidos, juntos.begin(), {}, lugar, lugar);
    }
    m_tablas[origen].filas(quedan);
    m_tablas[destino].filas(juntos);
}

void cExportar::CargarDeclarantes()
{
    m_lugar.clear();
    Elementos disponibles;
    QHash<qint32, DeclaranteExportable> renovados;
    servicioDeclarante()->RecorrerExportar(m_orden, [&](const Registro &registro) {
        const auto leido = DeclaranteExportable::de(registro);
        m_lugar.insert(leido.csco, static_cast<int>(m_lugar.size()));
        if (TablaContriExpPERTENECE(leido.csco))
            renovados.insert(leido.csco, leido);
        else
            disponibles.append(leido);
        return true;
    });
    Elementos elegidos;
    for (const auto &fila : tabla(ContriExp).filas())
        if (const auto renovado = renovados.constFind(fila.csco); renovado != renovados.cend())
            elegidos.append(*renovado);
    m_tablas[Contri].filas(disponibles);
    m_tablas[ContriExp].filas(elegidos);
}

Exportado cExportar::EscribirFichero(const std::function<bool(qint64)> &seguir) const
{
    const auto elegidos = [this](const Visitante &visitar) {
        for (int posicion = 1; posicion <= TablaContriExpCOUNT(); ++posicion)
            if (!visitar(TablaContriExpELEMENTO(posicion).registro))
                return;
    };
    return exportar(m_fichero, elegidos, seguir);
}
