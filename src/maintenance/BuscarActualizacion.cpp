#include "maintenance/BuscarActualizacion.h"

#include "core/Rutas.h"
#include "core/Unico.h"
#include "maintenance/Descarga.h"
#include "maintenance/FrmSinConexion.h"
#include "maintenance/FrmVersionCheck.h"
#include "maintenance/cActOnline.h"
#include "maintenance/frmPreferencias.h"
#include "widgets/Mensajes.h"

#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>

using namespace Qt::StringLiterals;

static void esperar(std::chrono::milliseconds plazo)
{
    QEventLoop espera;
    QTimer::singleShot(plazo, &espera, &QEventLoop::quit);
    espera.exec();
}

/// The answer of the service, kept as "version.ini"; nothing when it did not get there.
static std::optional<QByteArray> traerVersion(const cActOnline &estado)
{
    QFile fichero(rutas().programa + u"/version.ini"_s);
    if (fichero.exists() && !fichero.remove())
        return {};
    auto respuesta = descargar(estado.Direccion(), estado.limite);
    const bool guardada = respuesta && fichero.open(QIODevice::WriteOnly)
        && fichero.write(*respuesta) == respuesta->size() && fichero.flush();
    return guardada ? respuesta : std::nullopt;
}

static std::optional<QByteArray> preguntar(const cActOnline &estado)
{
    const PunteroOcupado ocupado;
    esperar(estado.espera);
    return traerVersion(estado);
}

void buscarActualizacion(QWidget *padre)
{
    static bool buscando = false;
    if (buscando)
        return;
    const QScopedValueRollback ahora(buscando, true);
    const QPointer<QWidget> dueno(padre); // it may be closed meanwhile
    auto &estado = unico::la<cActOnline>();
    estado.SitAct(cActOnline::SinBuscar);
    const auto respuesta = preguntar(estado);
    const bool leida = respuesta && estado.TomarRespuesta(*respuesta);
    const bool abandonada = padre && !(dueno && dueno->isVisible());
    if (!leida)
        estado.SitAct(respuesta ? cActOnline::Ilegible : cActOnline::SinServidor);
    if (!leida && !abandonada)
        FrmSinConexion(dueno).ejecutar();
    if (leida && !abandonada && (estado.ComVer() == 1 || frmPreferencias::abierta()))
        FrmVersionCheck(dueno).ejecutar();
    if (leida)
        estado.SitAct(cActOnline::Comparada);
}
