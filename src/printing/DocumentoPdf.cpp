#include "printing/DocumentoPdf.h"

#include "core/Textos.h"
#include "printing/TrabajoImpresion.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QSaveFile>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

/// The document's properties, with the author and the languages that QPdfWriter has no setter for.
static QByteArray propiedades(const QString &titulo)
{
    static constexpr auto plantilla = uR"(<?xpacket begin="" id="W5M0MpCehiHzreSzNTczkc9d"?>
<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
<rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:xmp="http://ns.adobe.com/xap/1.0/">
<dc:title><rdf:Alt><rdf:li xml:lang="x-default">%1</rdf:li></rdf:Alt></dc:title>
<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>
<dc:language><rdf:Bag><rdf:li>eu</rdf:li><rdf:li>es</rdf:li></rdf:Bag></dc:language>
<xmp:CreatorTool>%2</xmp:CreatorTool><xmp:CreateDate>%3</xmp:CreateDate>
</rdf:Description></rdf:RDF></x:xmpmeta>
<?xpacket end="w"?>
)";
    return QString::fromUtf16(plantilla)
        .arg(titulo.toHtmlEscaped(), AutorDocumento.toString(),
             QDateTime::currentDateTime().toString(Qt::ISODate))
        .toUtf8();
}

QByteArray documentoPdf(const QString &titulo,
                        const std::function<bool(QPagedPaintDevice &)> &dibujar)
{
    QBuffer memoria;
    memoria.open(QIODevice::WriteOnly);
    QPdfWriter escritor(&memoria);
    prepararPagina(escritor);
    escritor.setTitle(titulo);
    escritor.setCreator(AutorDocumento.toString());
    escritor.setDocumentXmpMetadata(propiedades(titulo));
    return dibujar(escritor) ? memoria.data() : QByteArray();
}

static QString motivo(Msj cual, const QString &ruta)
{
    return msj(cual, QDir::toNativeSeparators(ruta));
}

QString guardarPdf(const QString &ruta, const QByteArray &contenido)
{
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo::exists(carpeta))
        return motivo(Msj::FalloNoExiste, carpeta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly))
        return motivo(Msj::FalloSoloLectura, ruta);
    const bool escrito = fichero.write(contenido) == contenido.size() && fichero.commit();
    if (escrito)
        return {};
    const bool sinEspacio = fichero.error() == QFileDevice::ResourceError
        || QStorageInfo(carpeta).bytesAvailable() < contenido.size();
    return motivo(sinEspacio ? Msj::FalloSinEspacio : Msj::FalloLecturaEscritura, ruta);
}

QStringList rutasPdf(const QString &ruta, const QStringList &copias, bool unoSolo)
{
    if (unoSolo || copias.size() == 1)
        return {ruta};
    QString raiz = ruta;
    for (const QString &final : {u".pdf"_s, u'_' + copias.join(u'-')})
        if (raiz.endsWith(final, Qt::CaseInsensitive))
            raiz.chop(final.size());
    QStringList rutas;
    for (const QString &copia : copias)
        rutas << raiz + u'_' + copia + u".pdf"_s;
    return rutas;
}

QString guardarPdfs(TrabajoImpresion &trabajo, const QStringList &rutas)
{
    const QStringList copias = trabajo.copias();
    QList<QByteArray> documentos;
    for (qsizetype i = 0; i < rutas.size(); ++i) {
        documentos += trabajo.pdf(rutas.size() == 1 ? copias : copias.mid(i, 1));
        if (documentos.constLast().isEmpty())
            return msj(Msj::PdfVacio);
    }
    for (qsizetype i = 0; i < rutas.size(); ++i)
        if (const QString motivo = guardarPdf(rutas[i], documentos[i]); !motivo.isEmpty())
            return motivo;
    return {};
}
