#include "core/LectorLineas.h"
#include "core/Servicios.h"
#include "exchange/LineaIntercambio.h"
#include "support/Entorno.h"
#include "support/LineasPrueba.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QRandomGenerator>

#include <cstdio>
#include <cstdlib>
#include <string_view>

// Bytes of all kinds through reading, checking, storing, writing and reading again:
//     fuzz_intercambio [SECONDS [SEED]]
// Without a seed it begins at the same one every time, so that a run can be repeated; 0 takes any.
// Ends the process, saying with what, when a stored line does not come out as it went in.

static constexpr qsizetype Ancho = 153;

/// Texts as the service holds them; the counters are not the file's to say.
static QStringList comparable(const ConjuntoDeclarantes &conjunto)
{
    QStringList textos;
    for (const QString &texto : lineas::textos(conjunto))
        textos += texto.trimmed().toUpper();
    // a file may fill its numbers with blanks
    for (const int campo : {RegDeclarante::CODPROV, RegDeclarante::CODMUN})
        textos[campo - 1] = QString::number(textos[campo - 1].toInt());
    textos[RegDeclarante::NUMERO - 1] = QString::number(textos[RegDeclarante::NUMERO - 1].toInt());
    return textos;
}

static Registro comoRegistro(const ConjuntoDeclarantes &conjunto)
{
    Registro registro{0};
    for (const QString &texto : lineas::textos(conjunto))
        registro += texto;
    return registro << 0.0 << 0.0;
}

[[noreturn]] static void fallar(const char *que, QByteArrayView linea)
{
    std::fprintf(stderr, "%s: %s\n", que, linea.toByteArray().toPercentEncoding().constData());
    std::abort();
}

/// A line that the service accepts: stored, read back, written and cut again, it says the same.
static bool probarLinea(QByteArrayView linea)
{
    ConjuntoDeclarantes leido;
    if (linea.size() < Ancho || intercambio::leerLinea(linea, leido))
        return false;
    auto servicio = servicioDeclarante();
    servicio->mdbnameL(rutas().lectura);
    const auto resultado = servicio->GuardarConjunto(leido, 0, 1, Existentes::Sustituir, 0).first();
    const bool aceptada = resultado.clase != ResultadoConjunto::Incorrecto;
    if (aceptada != servicio->ValidarDatosImportar(comoRegistro(leido), 0).isEmpty())
        fallar("checked alone and in a set, not the same", linea);
    if (!aceptada)
        return false;
    qint32 csco = servicio->ObtenerCodigoDeclarante(lineas::textos(leido).first());
    Registro guardado;
    servicio->CargarDeclarante(csco, guardado);
    QByteArray escrita;
    if (intercambio::escribirLinea(escrita, guardado) || escrita.size() != Ancho + 2)
        fallar("cannot be written", linea);
    ConjuntoDeclarantes releido;
    if (intercambio::leerLinea(escrita, releido) || comparable(releido) != comparable(leido))
        fallar("comes back otherwise", linea);
    return true;
}

static int probar(QByteArray fichero)
{
    QBuffer dispositivo(&fichero);
    dispositivo.open(QIODevice::ReadOnly);
    LectorLineas lector(dispositivo, Ancho);
    int aceptadas = 0;
    while (lector.siguiente())
        aceptadas += probarLinea(lector.linea()) ? 1 : 0;
    return aceptadas;
}

static QByteArray semilla(QRandomGenerator &azar)
{
    return lineas::linea(azar.bounded(1, 99'999'999),
                         azar.bounded(2) ? "IBA\xD1"
                                           "EZ"
                                         : "x")
        + "\r\n";
}

/// Some bytes changed, moved, doubled or lost; most of it stays near what is valid.
static void mutar(QByteArray &texto, QRandomGenerator &azar)
{
    static constexpr std::string_view raros = "\r\n\t \0\x1A\x7F\x80\x81\xAD\xC3\x91\xDF\xFF+-.,0"
                                              "9Aa@'\"";
    for (int cambios = azar.bounded(4); cambios > 0; --cambios) {
        const qsizetype lugar = azar.bounded(texto.size() + 1);
        const auto raro = raros[static_cast<std::size_t>(azar.bounded(int(raros.size())))];
        switch (azar.bounded(5)) {
        case 0:
            texto.insert(lugar, raro);
            break;
        case 1:
            texto.remove(lugar, azar.bounded(1, 9));
            break;
        case 2:
            texto.replace(lugar, 1, QByteArray(1, char(azar.bounded(256))));
            break;
        case 3:
            texto.replace(lugar, 5, texto.mid(azar.bounded(texto.size() + 1), 5));
            break;
        default:
            texto.replace(lugar, 1, QByteArray(1, raro));
        }
    }
}

int main(int argc, char **argv)
{
    const double segundos = argc > 1 ? std::atof(argv[1]) : 0.5;
    const quint32 pedido = argc > 2 ? quint32(std::atoi(argv[2])) : 1;
    const quint32 numero = pedido != 0 ? pedido : QRandomGenerator::global()->generate();
    std::printf("seed %u\n", numero);
    QRandomGenerator azar(numero);
    const Entorno entorno;
    qint64 vueltas = 0;
    qint64 aceptadas = 0;
    for (const QDeadlineTimer fin(qint64(segundos * 1000)); !fin.hasExpired(); ++vueltas) {
        QByteArray fichero = semilla(azar) + semilla(azar);
        mutar(fichero, azar);
        aceptadas += probar(fichero);
    }
    std::printf("%lld files, %lld lines accepted\n", vueltas, aceptadas);
    return aceptadas > 0 ? 0 : 1;
}
