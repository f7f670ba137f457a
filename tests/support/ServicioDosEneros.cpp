#include "support/ServicioDosEneros.h"

#include "dataservice/SvrOstr.h"
#include "server/Registro.h"

#include <stdexcept>

namespace {

[[noreturn]] void inesperado()
{
    throw std::logic_error("a call that the monthly list has no reason to make");
}

class Declarantes : public SvrOstr::cDeclarante
{
public:
    void mdbnameM(const QString &) override {}
    void mdbnameL(const QString &) override {}
    void CargarDeclarante(qint32 &, Registro &) override { inesperado(); }
    QByteArray Huella(qint32) override { inesperado(); }
    qint16 GuardarDeclarante(const Registro &) override { inesperado(); }
    void BorrarDeclarante(qint32) override { inesperado(); }
    qint16 ValidarDatosDeclarante(const Registro &) override { inesperado(); }
    qint32 ObtenerCodigoDeclarante(const QString &) override { inesperado(); }
    Filas ValidarDatosImportar(const Registro &, qint16) override { inesperado(); }
    Filas GuardarConjunto(const Filas &, Existentes, qint16) override { inesperado(); }
    void RecorrerExportar(quint8, const std::function<bool(const Registro &)> &) override
    {
        inesperado();
    }
    qint32 dameResultado(Filas &, quint8, qint16) override { inesperado(); }
    qint32 dameResultadoExportar(Filas &, quint8) override { inesperado(); }
    void ObtenerUltimosDeclarantes(Filas &) override { inesperado(); }
    bool ObtListDecl430(Filas &filas, qint16, qint32) override
    {
        filas = {QVariantList{1, 1}, QVariantList{2, 1}, QVariantList{3, 3}};
        return true;
    }
};

class Declaraciones : public SvrOstr::cDeclaracion
{
public:
    void mdbname(const QString &) override {}
    qint32 dameResultado(Filas &, qint32) override { inesperado(); }
    bool EjerPerValidos(const Registro &) override { inesperado(); }
    bool ObtenerUltimaDeclaracion(Registro &, qint32 &) override { inesperado(); }
    qint16 ValidarDatosComunes(const Registro &) override { inesperado(); }
    void Cargar430(qint32 &CSDE, Registro &figuras) override
    {
        const double base = 10000.0 * CSDE;
        figuras = {QString(), base, 10.0F, base / 10, 0.0, 0.0, base, 10.0F, base / 10};
    }
    QByteArray Huella(qint32) override { inesperado(); }
    void Cargar480(qint32 &, Registro &) override { inesperado(); }
    qint16 ValidarDatos430(const Registro &) override { inesperado(); }
    qint16 ValidarDatos480(const Registro &) override { inesperado(); }
    qint32 Guardar430(const Registro &) override { inesperado(); }
    qint32 Guardar480(const Registro &) override { inesperado(); }
    void BorrarDatosNoComunes(qint32, const QString &) override { inesperado(); }
    void BorrarDeclaracion(qint32) override { inesperado(); }
};

} // namespace

ServicioDosEneros::ServicioDosEneros()
{
    servicio::registrar(Declarantes::ID, [] { return std::make_unique<Declarantes>(); });
    servicio::registrar(Declaraciones::ID, [] { return std::make_unique<Declaraciones>(); });
}

ServicioDosEneros::~ServicioDosEneros()
{
    registrarServidor();
}
