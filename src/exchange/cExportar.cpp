#include "exchange/cExportar.h"

#include "core/Servicios.h"
#include "core/Textos.h"

#include <algorithm>

static qint32 claveDe(const QVariant &fila)
{
    return fila.toList().value(RegDeclarante::CSCO).toInt();
}

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
    const Filas &filas = tabla(Contri).filas();
    const auto lugar = [this](const QVariant &fila) { return m_lugar.value(claveDe(fila)); };
    return static_cast<int>(std::ranges::upper_bound(filas, m_lugar.value(csco), {}, lugar)
                            - filas.begin() + 1);
}

void cExportar::COPIARELEMENTOENTRETABLAS(Tabla origen, int posicion)
{
    const Registro elemento = tabla(origen).ELEMENTO(posicion);
    if (elemento.isEmpty())
        return;
    if (origen == Contri)
        TablaContriExpAÑADIR(elemento);
    else
        TablaContriINSERTAR(posicionDisponible(claveDe(elemento)), elemento);
}

void cExportar::MoverElementos(Tabla origen, const QList<int> &posiciones)
{
    const Tabla destino = origen == Contri ? ContriExp : Contri;
    const Filas presentes = tabla(destino).filas();
    Filas quedan;
    Filas movidos;
    auto siguiente = posiciones.begin();
    for (int posicion = 1; const QVariant &fila : tabla(origen).filas()) {
        const bool movido = siguiente != posiciones.end() && *siguiente == posicion;
        (movido ? movidos : quedan).append(fila);
        siguiente += movido ? 1 : 0;
        ++posicion;
    }
    Filas juntos = presentes + movidos;
    if (destino == Contri) {
        const auto lugar = [this](const QVariant &fila) { return m_lugar.value(claveDe(fila)); };
        std::ranges::sort(movidos, {}, lugar);
        std::ranges::merge(presentes, movidos, juntos.begin(), {}, lugar, lugar);
    }
    m_tablas[origen].filas(quedan);
    m_tablas[destino].filas(juntos);
}

void cExportar::CargarDeclarantes()
{
    Filas todas;
    servicioDeclarante()->dameResultadoExportar(todas, m_orden);
    m_lugar.clear();
    Filas disponibles;
    QHash<qint32, QVariant> renovados;
    for (const QVariant &fila : std::as_const(todas)) {
        const qint32 csco = claveDe(fila);
        m_lugar.insert(csco, static_cast<int>(m_lugar.size()));
        if (TablaContriExpPERTENECE(csco))
            renovados.insert(csco, fila);
        else
            disponibles.append(fila);
    }
    Filas elegidos;
    for (const QVariant &fila : tabla(ContriExp).filas())
        if (const auto renovado = renovados.constFind(claveDe(fila)); renovado != renovados.cend())
            elegidos.append(*renovado);
    m_tablas[Contri].filas(disponibles);
    m_tablas[ContriExp].filas(elegidos);
}

Exportado cExportar::EscribirFichero(const std::function<bool(qint64)> &seguir) const
{
    const auto elegidos = [this](const Visitante &visitar) {
        for (int posicion = 1; posicion <= TablaContriExpCOUNT(); ++posicion)
            if (!visitar(TablaContriExpELEMENTO(posicion)))
                return;
    };
    return exportar(m_fichero, elegidos, seguir);
}
