#include "printing/DocumentoPdf.h"

#include "core/GuardarFichero.h"
#include "core/Rutas.h"
#include "core/Textos.h"
#include "printing/TrabajoImpresion.h"

#include <QBuffer>
#include <QDateTime>
#include <QPdfWriter>
#include <QRegularExpression>

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

/// Hands on what is written into it, and keeps both ends.
class Extremos : public QIODevice
{
public:
    explicit Extremos(QIODevice &destino)
        : m_destino(destino)
    {
        open(QIODevice::WriteOnly);
    }
    bool isSequential() const override { return true; }

    static constexpr qsizetype Cabeza = 8192;
    static constexpr qsizetype Cola = 400;
    QByteArray cabeza;
    QByteArray cola;
    qint64 total = 0;

protected:
    qint64 readData(char * /*datos*/, qint64 /*maximo*/) override { return -1; }
    qint64 writeData(const char *datos, qint64 bytes) override
    {
        const QByteArrayView trozo(datos, bytes);
        cabeza += trozo.first(std::min<qsizetype>(bytes, Cabeza - cabeza.size()));
        cola += trozo.last(std::min<qsizetype>(bytes, Cola));
        cola = cola.last(std::min(cola.size(), Cola));
        total += bytes;
        return escribirEntero(m_destino, trozo) ? bytes : -1;
    }

private:
    QIODevice &m_destino;
};

/// An author in the document's dictionary, which QPdfWriter has no setter for either: a new version
/// of that dictionary to stand after the end, as the format lets one be changed.
static QByteArray autoria(const Extremos &pdf, const QString &autor)
{
    static const QRegularExpression final(
        u"/Size (\\d+)\\s+/Info (\\d+) 0 R\\s+/Root (\\d+) 0 R\\s*>>\\s*startxref\\s+(\\d+)\\s+%%EOF\\s*$"_s);
    const auto m = final.match(QString::fromLatin1(pdf.cola));
    const QByteArray principio = m.captured(2).toLatin1() + " 0 obj\n<<";
    const auto desde = pdf.cabeza.indexOf('\n' + principio) + 1;
    const auto hasta = pdf.cabeza.indexOf("endobj", desde);
    if (!m.hasMatch() || desde == 0 || hasta < 0)
        return {};
    QByteArray diccionario = pdf.cabeza.mid(desde, hasta - desde);
    QByteArray texto("\xfe\xff");
    for (const QChar c : autor)
        texto += static_cast<char>(c.unicode() >> 8), texto += static_cast<char>(c.unicode() & 255);
    diccionario.insert(principio.size(), "\n/Author <" + texto.toHex() + '>');
    diccionario += "endobj\n";
    const auto tabla = pdf.total + diccionario.size();
    return diccionario + "xref\n" + m.captured(2).toLatin1() + " 1\n"
        + QByteArray::number(pdf.total).rightJustified(10, '0') + " 00000 n \ntrailer\n<<\n/Size "
        + m.captured(1).toLatin1() + "\n/Info " + m.captured(2).toLatin1() + " 0 R\n/Root "
        + m.captured(3).toLatin1() + " 0 R\n/Prev " + m.captured(4).toLatin1() + "\n>>\nstartxref\n"
        + QByteArray::number(tabla) + "\n%%EOF\n";
}

bool escribirPdf(QIODevice &destino, const QString &titulo, const DibujoPdf &dibujar)
{
    Extremos pdf(destino);
    QPdfWriter escritor(&pdf);
    prepararPagina(escritor);
    escritor.setTitle(titulo);
    escritor.setCreator(AutorDocumento.toString());
    escritor.setDocumentXmpMetadata(propiedades(titulo));
    if (!dibujar(escritor))
        return false;
    return escribirEntero(destino, autoria(pdf, AutorDocumento.toString()));
}

QByteArray documentoPdf(const QString &titulo, const DibujoPdf &dibujar)
{
    QBuffer memoria;
    memoria.open(QIODevice::WriteOnly);
    return escribirPdf(memoria, titulo, dibujar) ? memoria.data() : QByteArray();
}

QString motivoRutasRechazadas(const QStringList &rutas)
{
    for (const QString &ruta : rutas)
        if (QString rechazo = motivoRutaRechazada(ruta); !rechazo.isEmpty())
            return rechazo;
    return {};
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
    if (QString rechazo = motivoRutasRechazadas(rutas); !rechazo.isEmpty())
        return rechazo;
    const QStringList copias = trabajo.copias();
    QList<QByteArray> documentos;
    for (qsizetype i = 0; i < rutas.size(); ++i) {
        documentos += trabajo.pdf(rutas.size() == 1 ? copias : copias.mid(i, 1));
        if (documentos.constLast().isEmpty())
            return msj(Msj::PdfVacio);
    }
    for (qsizetype i = 0; i < rutas.size(); ++i)
        if (QString motivo = guardarFichero(rutas[i], documentos[i]); !motivo.isEmpty())
            return motivo;
    return {};
}
