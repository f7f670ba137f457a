#include "app/Arranque.h"
#include "app/DialogosVentana.h"
#include "cli/Cli.h"
#include "core/Plataforma.h"
#include "core/Rutas.h"
#include "server/Servidor.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <csignal>
#include <cstdio>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

/// What Qt has to say of a machine without a session is nothing to whoever gave a command: standard
/// error is for the command's own reasons.
static void soloGraves(QtMsgType tipo, const QMessageLogContext &, const QString &texto)
{
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg)
        fprintf(stderr, "%s\n", qUtf8Printable(texto));
}

static std::unique_ptr<QCoreApplication> nuevaAplicacion(int &argc, char **argv)
{
    QStringList argumentos;
    for (int i = 1; i < argc; ++i)
        argumentos += QString::fromLocal8Bit(argv[i]);
    if (hayOrden(argumentos))
        qInstallMessageHandler(soloGraves);
    if (!dibujaPaginas(argumentos))
        return std::make_unique<QCoreApplication>(argc, argv);
#ifndef Q_OS_WIN // where there is always a screen, and typefaces are had from it alone
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// An installed program has its entry in the menus beside it; one that was unpacked or built keeps
/// the data in its own folder.
static bool esInstalado()
{
    const QDir programas(QCoreApplication::applicationDirPath());
    return QFileInfo::exists(programas.filePath(u"../share/applications/ostrel.desktop"_s));
}

static Rutas rutasDe(const QStringList &argumentos)
{
    if (const auto carpeta = carpetaPedida(argumentos))
        return Rutas::desde(*carpeta);
    return esInstalado() ? Rutas::delUsuario()
                         : Rutas::desde(QCoreApplication::applicationDirPath());
}

/// Settles the session's paths; a command is carried out here, without a display.
static std::optional<int> sinVentana(int &argc, char **argv)
{
    const auto aplicacion = nuevaAplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments().mid(1);
    fijarRutas(rutasDe(argumentos));
    if (!hayOrden(argumentos))
        return {};
    registrarServidor();
    return ejecutarOrden(argumentos);
}

/// A file that may grow no further is an error to be told, not the end of the process.
static void noMorirPorElTamano()
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

int main(int argc, char **argv)
{
    noMorirPorElTamano();
    plataforma::anunciar();
    plataforma::prepararConsola();
    QCoreApplication::setApplicationVersion(plataforma::version());
    if (const auto codigo = sinVentana(argc, argv))
        return *codigo;
    DialogosVentana dialogos;
    registrarServidor(&dialogos);
    return abrirVentana(argc, argv);
}
