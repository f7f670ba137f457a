#include "support/GeneralAveriado.h"

#include "server/Registro.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fallar()
{
    throw ErrorDatos(Fallo::SinEspacio, u"OstrMod.mdb"_s);
}

class Doble : public SvrOstr::cDatosGeneral
{
public:
    void mdbname(const QString &) override {}
    qint32 NumeroDeclarantes() override { fallar(); }
    void CambiarIdioma(const QString &) override { fallar(); }
    QString ObtenerIdioma() override { fallar(); }
    void GuardarActOnline(qint16) override { fallar(); }
    qint16 ObtenerActOnline() override { fallar(); }
    void DameEjerPerMinMax(Registro &) override { fallar(); }
    void ObtenerNombreProvincia(const QString &, QString &, qint16) override { fallar(); }
    void ObtenerNombreMunicipio(const QString &, QString &) override { fallar(); }
    void CargarProvincias(const QString &, Filas &) override { fallar(); }
    void CargarMunicipios(const QString &, Filas &) override { fallar(); }
    void CargarVias(const QString &, Filas &) override { fallar(); }
    void ObtenerTipoAnual(Registro &, qint16) override { fallar(); }
    float ObtenerTipoImpositivo(qint16, quint8) override { fallar(); }
    QString URLAct() override { fallar(); }
};

} // namespace

GeneralAveriado::GeneralAveriado()
{
    servicio::registrar(Doble::ID, [] { return std::make_unique<Doble>(); });
}

GeneralAveriado::~GeneralAveriado()
{
    registrarServidor();
}
