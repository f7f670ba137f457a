#include "server/cDeclarante.h"

#include "server/AlmacenConjunto.h"
#include "server/AlmacenDeclarantes.h"
#include "server/Danados.h"
#include "server/LectorRegistro.h"
#include "server/ValidacionDeclarante.h"

#include <QHash>
#include <QScopeGuard>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr quint8 PorNombre = 2;

std::string orderBy(quint8 orden)
{
    if (orden == 0)
        return {};
    return orden == PorNombre ? "ORDER BY CLAVE, DNI" : "ORDER BY DNI";
}

QHash<qint64, QString> nombresProvincias(const PConexion &lectura, qint16 idioma)
{
    Sentencia sentencia(lectura, "SELECT T05_PRO_ID, T05_PRO_CAS, T05_PRO_EUS FROM T05_PROVINCIAS");
    QHash<qint64, QString> nombres;
    while (sentencia.fila())
        nombres.insert(sentencia.entero(0),
                       sentencia.texto(idiomaDe(idioma) == Idioma::Castellano ? 1 : 2));
    return nombres;
}

/// The RegDeclarante of a stored one, or its RegDanado.
std::optional<Registro> leer(const PConexion &conexion, qint32 CSCO)
{
    Sentencia sentencia(conexion, seleccionDeclarante("WHERE CSCO = ?"));
    if (!sentencia.con(CSCO).fila())
        return {};
    return registroListado(conexion, sentencia);
}

std::optional<Registro> leerBien(const PConexion &conexion, qint32 CSCO)
{
    auto leida = leer(conexion, CSCO);
    if (leida && esDanado(*leida))
        declaranteDanado(conexion, CSCO);
    return leida;
}

} // namespace

void cDeclarante::CargarDeclarante(qint32 &CSCO, Registro &registro)
{
    const auto leida = leerBien(Conexion::datos(m_datos), CSCO);
    if (!leida)
        sinDeclarante();
    registro = *leida;
}

void cDeclarante::CargarListado(qint32 CSCO, Registro &registro)
{
    const auto leida = leer(Conexion::datos(m_datos), CSCO);
    if (!leida)
        sinDeclarante();
    registro = *leida;
}

QByteArray cDeclarante::Huella(qint32 CSCO)
{
    const auto leida = leerBien(Conexion::datos(m_datos), CSCO);
    return leida ? huella(leida->first(RegDeclarante::NUM430)) : QByteArray();
}

qint16 cDeclarante::GuardarDeclarante(const Registro &registro)
{
    Transaccion transaccion(Conexion::datos(m_datos));
    const Guardado resultado = guardarDeclarante(transaccion.conexion(), registro);
    if (resultado == Guardado::Hecho)
        transaccion.confirmar();
    return static_cast<qint16>(resultado);
}

void cDeclarante::BorrarDeclarante(qint32 CSCO)
{
    Transaccion transaccion(Conexion::datos(m_datos));
    Sentencia sentencia(transaccion.conexion(), "DELETE FROM DECLARANTES WHERE CSCO = ?");
    if (sentencia.con(CSCO).ejecutar() == 0)
        sinDeclarante();
    transaccion.confirmar();
}

qint16 cDeclarante::ValidarDatosDeclarante(const Registro &datos)
{
    return primeraReglaRota(datos);
}

qint32 cDeclarante::ObtenerCodigoDeclarante(const QString &DNI)
{
    return claveDeDni(Conexion::datos(m_datos), normalizado(DNI).toStdString());
}

Filas cDeclarante::ValidarDatosImportar(const Registro &registro, qint16 idioma)
{
    const ReglasImportar reglas(Conexion::lectura(m_lectura), idioma);
    Filas filas;
    for (const QString &hallazgo : reglas.hallazgos(DatosDeclarante::de(registro)))
        filas.append(QVariant(QVariantList{hallazgo}));
    return filas;
}

QList<ResultadoConjunto> cDeclarante::GuardarConjunto(const ConjuntoDeclarantes &conjunto,
                                                      qsizetype desde, qsizetype hasta,
                                                      Existentes existentes, qint16 idioma)
{
    return guardarConjunto(Conexion::datos(m_datos), Conexion::lectura(m_lectura),
                           {conjunto, desde, hasta}, existentes, idioma);
}

// Read as the table lies and put in order here: following an index to each row takes three times as
// long.
qint32 cDeclarante::dameResultado(Filas &filas, quint8 orden, qint16 idioma)
{
    const auto provincias = nombresProvincias(Conexion::lectura(m_lectura), idioma);
    const PConexion conexion = Conexion::datos(m_datos);
    static const std::string sql
        = "SELECT CSCO, DNI, NOMBRE, NOMMUN, CODPROV, NUM430, NUM480, CLAVE, "
        + probadaDeclarantes().bien() + " FROM DECLARANTES";
    std::vector<std::pair<std::string, QVariant>> leidas;
    recorrerTodas(conexion, probadaDeclarantes(), sql, [&](const Sentencia &fila) {
        if (!filaBien(fila)) {
            leidas.emplace_back(std::string(), registroDanado(conexion, fila.clave(0)));
            return true;
        }
        std::string clave = fila.texto(1).toStdString();
        if (orden == PorNombre)
            clave.insert(0, fila.texto(7).toStdString() + '\0');
        leidas.emplace_back(std::move(clave),
                            QVariant(QVariantList{fila.clave(0), fila.texto(1), fila.texto(2),
                                                  fila.texto(3), provincias.value(fila.entero(4)),
                                                  static_cast<double>(fila.entero(5)),
                                                  static_cast<double>(fila.entero(6))}));
        return true;
    });
    std::ranges::sort(leidas, {}, &std::pair<std::string, QVariant>::first);
    Filas ordenadas;
    ordenadas.reserve(static_cast<qsizetype>(leidas.size()));
    for (auto &[clave, fila] : leidas)
        ordenadas.append(std::move(fila));
    filas = std::move(ordenadas);
    return static_cast<qint32>(filas.size());
}

qint32 cDeclarante::dameResultadoExportar(Filas &filas, quint8 orden)
{
    Filas leidas;
    RecorrerExportar(orden, [&](const Registro &registro) {
        leidas.append(QVariant(registro));
        return true;
    });
    filas = std::move(leidas);
    return static_cast<qint32>(filas.size());
}

void cDeclarante::RecorrerExportar(quint8 orden,
                                   const std::function<bool(const Registro &)> &visitar)
{
    const PConexion conexion = Conexion::datos(m_datos);
    // the rows of another order than the table's lie anywhere in it
    conexion->paginas(orden == 0 ? Conexion::Paginas::Usuales : Conexion::Paginas::Muchas);
    const auto vuelta = qScopeGuard([&] { conexion->paginas(Conexion::Paginas::Usuales); });
    recorrerTodas(conexion, probadaDeclarantes(), seleccionDeclarante(orderBy(orden)),
                  [&](const Sentencia &fila) { return visitar(registroListado(conexion, fila)); });
}

void cDeclarante::RecorrerLista(const std::function<bool(const Registro &)> &visitar)
{
    using namespace RegDeclarante;
    const PConexion conexion = Conexion::datos(m_datos);
    static const std::string sql = "SELECT CSCO, DNI, NOMBRE, NOMMUN, CODPROV, NUM430, NUM480, "
        + probadaDeclarantes().bien() + " FROM DECLARANTES";
    Registro registro(Total);
    recorrerTodas(conexion, probadaDeclarantes(), sql, [&](const Sentencia &fila) {
        if (!filaBien(fila))
            return visitar(registroDanado(conexion, fila.clave(0)));
        for (int columna = 0; const Campo texto : {DNI, NOMBRE, NOMMUN})
            registro[texto] = fila.texto(++columna);
        for (int columna = 3; const Campo numero : {CODPROV, NUM430, NUM480})
            registro[numero] = fila.clave(++columna);
        registro[CSCO] = fila.clave(0);
        return visitar(registro);
    });
}

void cDeclarante::ObtenerUltimosDeclarantes(Filas &filas)
{
    static const std::string sql = "SELECT CSCO, DNI, NOMBRE FROM DECLARANTES WHERE RECIENTE > 0 "
                                   "AND "
        + probadaDeclarantes().bien() + " ORDER BY RECIENTE DESC LIMIT 4";
    Sentencia sentencia(Conexion::datos(m_datos), sql);
    Filas leidas;
    while (sentencia.fila())
        leidas.append(
            QVariant(QVariantList{sentencia.clave(0), sentencia.texto(1), sentencia.texto(2)}));
    filas = std::move(leidas);
}

// All of the declarant's: an entry of the index with another year or model would hide a month.
bool cDeclarante::ObtListDecl430(Filas &filas, qint16 ejercicio, qint32 CSCO)
{
    const PConexion conexion = Conexion::datos(m_datos);
    static const std::string sql = "SELECT CSDE, PERIODO, EJERCICIO, MODELO, "
        + probadaDeclaraciones().bien() + " FROM DECLARACIONES WHERE CSCO = ? ORDER BY PERIODO";
    Sentencia sentencia(conexion, sql);
    sentencia.con(CSCO);
    Filas leidas;
    while (sentencia.fila()) {
        const qint32 csde = sentencia.clave(0);
        if (!filaBien(sentencia)) {
            const auto segura = cabeceraSegura(conexion, csde);
            if (segura.modelo.isEmpty()
                || (segura.ejercicio == ejercicio && segura.modelo == Modelo430))
                declaracionDanada(conexion, csde);
        } else if (sentencia.clave(2) == ejercicio && sentencia.texto(3) == Modelo430) {
            leidas.append(QVariant(QVariantList{csde, sentencia.clave(1)}));
        }
    }
    exigirCuenta(conexion, CSCO);
    filas = std::move(leidas);
    return !filas.isEmpty();
}

} // namespace servidor
