#include "server/ValidacionDeclarante.h"

#include "server/LectorRegistro.h"
#include "server/Nif.h"

#include <algorithm>

namespace servidor {

namespace {

bool sonCifras(const QString &texto, qsizetype cuantas)
{
    return texto.size() == cuantas
        && std::all_of(texto.begin(), texto.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

Regla reglaPostal(const QString &postal, qint32 provincia)
{
    if (!sonCifras(postal, 5))
        return ReglaPostalCincoCifras;
    if (postal.toInt() == 0)
        return ReglaPostalCero;
    if (postal.first(2).toInt() != provincia)
        return ReglaPostalDeOtraProvincia;
    return postal.toInt() % 1000 == 0 ? ReglaPostalTresUltimas : Ninguna;
}

Regla reglaTelefono(const QString &telefono, Telefono exigencia)
{
    if (telefono.isEmpty())
        return exigencia == Telefono::Obligatorio ? ReglaTelefono : Ninguna;
    return sonCifras(telefono, 9) ? Ninguna : ReglaTelefonoNueveCifras;
}

} // namespace

QList<qint16> reglasRotas(const Registro &datos, Telefono telefono)
{
    using namespace RegValidacion;
    LectorRegistro lector(datos, Total);
    QStringList textos;
    for (qsizetype campo = 0; campo < Total; ++campo)
        textos += lector.texto(campo);
    lector.exigirValido();

    const qint32 provincia = textos[CODPROV].toInt();
    const bool hayProvincia = provincia >= 1 && provincia <= Provincias;
    const bool faltaCodigo = provincia == ProvinciaPropia && textos[CODMUN].toInt() <= 0;

    QList<qint16> rotas;
    const auto anotar = [&](bool rota, qint16 regla) {
        if (rota)
            rotas += regla;
    };
    anotar(!nifValido(textos[DNI]), ReglaDni);
    anotar(textos[NOMBRE].isEmpty(), ReglaNombre);
    anotar(textos[DOMICILIO].isEmpty(), ReglaDomicilio);
    anotar(!hayProvincia, ReglaProvincia);
    const Regla postal = reglaPostal(textos[CODPOS], provincia);
    // Without a province there is nothing for the postal code to disagree with.
    anotar(postal != Ninguna && (hayProvincia || postal != ReglaPostalDeOtraProvincia), postal);
    anotar(faltaCodigo, ReglaCodigoMunicipio);
    anotar(textos[NOMMUN].isEmpty(), ReglaMunicipio);
    const Regla numero = reglaTelefono(textos[TELEFONO], telefono);
    anotar(numero != Ninguna, numero);
    return rotas;
}

} // namespace servidor
