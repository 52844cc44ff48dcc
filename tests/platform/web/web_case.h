#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include "platform/web/web_pane.h"
#include "support/printing.h"

/// A web server on loopback that gives a red picture for each request, or keeps silent, and knows what was
/// asked.
class PictureServer : public QTcpServer {
  Q_OBJECT

 public:
  PictureServer() {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
      ++connections;
      QTcpSocket* socket = nextPendingConnection();
      connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
    });
  }
  [[nodiscard]] QString address(const QString& path) const {
    return QStringLiteral("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
  }

  QStringList asked;
  int connections = 0;
  bool silent = false;

 private:
  void answer(QTcpSocket& socket) {
    asked << QString::fromLatin1(socket.readAll()).section(u' ', 1, 1);
    if (silent) return;
    static const QByteArray picture = QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSuQmCC");
    socket.write("HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nConnection: close\r\nContent-Length: " +
                 QByteArray::number(picture.size()) + "\r\n\r\n" + picture);
    socket.disconnectFromHost();
  }
};

class PaneCase : public ::testing::Test {
 protected:
  PaneCase() {
    qputenv("ZARIM_DRIVE_C", folder_.path().toUtf8());
    pane_.setPictureFolders({QStringLiteral("c:\\")});
    pane_.resize(600, 400);
    pane_.show();
  }

  QString file(const QString& name, const QByteArray& bytes) {
    const QString path = folder_.filePath(name);
    QFile out(path);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    return path;
  }
  QString page(const QString& body) {
    return file(QStringLiteral("page.html"),
                "<html><meta http-equiv='Content-Type' content='text/html; charset=iso-8859-1'><body>" +
                    body.toLatin1() + "</body></html>");
  }
  /// A PDF with a line of text on each page.
  QString pdf(const QStringList& pages) {
    const QString path = folder_.filePath(QStringLiteral("paginas.pdf"));
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (qsizetype i = 0; i < pages.size(); ++i) {
      if (i > 0) writer.newPage();
      painter.drawText(1000, 6000, pages.at(i));
    }
    return path;
  }
  /// Waits until the pane shows a colour somewhere. A picture of it is taken now and then only, since taking
  /// one holds up the drawing.
  bool shows(QColor color) {
    for (int attempt = 0; attempt < 50; ++attempt) {
      QTest::qWait(100);
      const QImage image = pane_.grab().toImage();
      for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
          if (image.pixelColor(x, y) == color) return true;
    }
    return false;
  }

  QTemporaryDir folder_;
  web::WebPane pane_;
};
