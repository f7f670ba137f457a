#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

/// State of the check for a newer version of the program.
class cActOnline
{
public:
    /// The program's own version is the application's.
    cActOnline();

    /// Outcomes of a check, in SitAct.
    enum Situacion : qint16 { SinBuscar = 0, SinServidor = 1, Comparada = 3, Ilegible = 4 };

    qint32 ComVer() const { return m_comVer; } ///< 1 when the published version differs
    void ComVer(qint32 valor) { m_comVer = valor; }
    qint16 SitAct() const { return m_sitAct; }
    void SitAct(qint16 valor) { m_sitAct = valor; }
    QString ActDescripcion() const { return m_actDescripcion; }
    void ActDescripcion(const QString &valor) { m_actDescripcion = valor; }
    QString ActVer1() const { return m_actVer[0]; }
    void ActVer1(const QString &valor) { m_actVer[0] = valor; }
    QString ActVer2() const { return m_actVer[1]; }
    void ActVer2(const QString &valor) { m_actVer[1] = valor; }
    QString ActVer3() const { return m_actVer[2]; }
    void ActVer3(const QString &valor) { m_actVer[2] = valor; }
    QString ProgVer1() const { return m_progVer[0]; }
    void ProgVer1(const QString &valor) { m_progVer[0] = valor; }
    QString ProgVer2() const { return m_progVer[1]; }
    void ProgVer2(const QString &valor) { m_progVer[1] = valor; }
    QString ProgVer3() const { return m_progVer[2]; }
    void ProgVer3(const QString &valor) { m_progVer[2] = valor; }
    QString ActDownloadURL() const { return m_actDownloadURL; }
    void ActDownloadURL(const QString &valor) { m_actDownloadURL = valor; }
    QString ActFile() const { return m_actFile; } ///< name of the file that is published
    void ActFile(const QString &valor) { m_actFile = valor; }
    /// 1: look at every start; 0: never; -1: once the main window or the choice of language is
    /// there.
    qint16 ActOnline() const { return m_actOnline; }
    void ActOnline(qint16 valor) { m_actOnline = valor; }
    QString URLAct() const { return m_urlAct; } ///< of the version service
    void URLAct(const QString &valor) { m_urlAct = valor; }

    void ObtenerURLAct();
    void GuardarActOnline();
    void LeerActOnline();

    /// What is asked of the service: its address with program and language.
    QString Direccion() const;
    /// Takes the answer of the service and compares the versions; false when it cannot be read.
    bool TomarRespuesta(const QByteArray &respuesta);
    QString VersionPropia() const { return m_progVer.join(u'.'); }
    QString VersionPublicada() const { return m_actVer.join(u'.'); }

    std::chrono::milliseconds espera{1000}; ///< before the service is asked
    std::chrono::milliseconds limite{5000}; ///< for its whole answer

private:
    qint32 m_comVer = 0;
    qint16 m_sitAct = SinBuscar;
    qint16 m_actOnline = 0;
    QStringList m_actVer{QString(), QString(), QString()};
    QStringList m_progVer{QString(), QString(), QString()};
    QString m_actDescripcion, m_actDownloadURL, m_actFile, m_urlAct;
};
