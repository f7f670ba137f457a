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
        return Regla::PostalCincoCifras;
    if (postal.toInt() == 0)
        return Regla::PostalCero;
    if (postal.first(2).toInt() != provincia)
        return Regla::PostalDeOtraProvincia;
    return postal.toInt() % 1000 == 0 ? Regla::PostalTresUltimas : Regla::Ninguna;
}

Regla reglaTelefono(const QString &telefono, Telefono exigencia)
{
    if (telefono.isEmpty())
        return exigencia == Telefono::Obligatorio ? Regla::Telefono : Regla::Ninguna;
    return sonCifras(telefono, 9) ? Regla::Ninguna : Regla::TelefonoNueveCifras;
}

} // namespace

QList<Regla> reglasRotas(const Registro &datos, Telefono telefono)
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

    QList<Regla> rotas;
    const auto anotar = [&](bool rota, Regla regla) {
        if (rota)
            rotas += regla;
    };
    anotar(!nifValido(textos[DNI]), Regla::Dni);
    anotar(textos[NOMBRE].isEmpty(), Regla::Nombre);
    anotar(textos[DOMICILIO].isEmpty(), Regla::Domicilio);
    anotar(!hayProvincia, Regla::Provincia);
    const Regla postal = reglaPostal(textos[CODPOS], provincia);
    // Without a province there is nothing for the postal code to disagree with.
    anotar(postal != Regla::Ninguna && (hayProvincia || postal != Regla::PostalDeOtraProvincia),
           postal);
    anotar(faltaCodigo, Regla::CodigoMunicipio);
    anotar(textos[NOMMUN].isEmpty(), Regla::Municipio);
    const Regla numero = reglaTelefono(textos[TELEFONO], telefono);
    anotar(numero != Regla::Ninguna, numero);
    return rotas;
}

} // namespace servidor
