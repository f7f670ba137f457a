#include "cli/Declarante.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"

using namespace Qt::StringLiterals;

QString tomarDeclarante(const QString &dni)
{
    auto &declarante = unico::la<cDecDatos>();
    const qint32 csco = declarante.ObtenerCodigoDeclarante(dni.trimmed().toUpper());
    if (csco == 0)
        return msj(Msj::CliDeclaranteNoExiste, dni);
    declarante.MODO(Modo::Consulta);
    declarante.CSCO(csco);
    declarante.CargarDeclarante(csco);
    unico::la<cDecResumen>().TomarDeclarante(csco, declarante.DNI(), declarante.NOMBRE());
    return {};
}
