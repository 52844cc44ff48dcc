// What a document asks of a server: as many requests for a long quote as for a short one, and every statement
// that the embedded file gets one by one.
#include <QFile>
#include <QImage>

#include "documents/word.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "quote_rows.h"
#include "sqlserver/tds_server.h"

using namespace Qt::StringLiterals;

namespace {

class Requests : public Quotes {
 protected:
  Requests() {
    sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, idclie, idcond_pgto) VALUES (9, 123, 5, 41)"_s);
    QImage(20, 10, QImage::Format_RGB32)
        .save(files::resolve(contexto().PathImagens) + u"/logomartatavora283x127.jpg"_s);
  }

  /// So many lines with five materials each, in the quote and in the order.
  void lines(int count) {
    QStringList items, order, materials;
    for (int i = 1; i <= count; ++i) {
      const QString product = QString::number(101 + i % 7);
      items << u"(%1, 123, %2, 2, 3, 6)"_s.arg(1000 + i).arg(i % 3 > 0 ? product + u", 'PROD'"_s
                                                                       : u"202, 'PROT'"_s);
      order << u"(9, %1, 2, 3, 6)"_s.arg(product);
      for (int j = 0; j < 5; ++j)
        materials << u"(123, %1, %2, 1, 'OUTROS')"_s.arg(1000 + i).arg(101 + (i + j) % 7);
    }
    const auto fill = [&](const QString& into, const QStringList& rows) {
      sql(u"INSERT INTO "_s + into + u" VALUES "_s + rows.join(u", "_s));
    };
    for (const QString& table : {u"prop_cmrc_deta"_s, u"prop_cmrc_deta_monta"_s, u"pedi_veds_deta"_s})
      sql(u"DELETE FROM "_s + table);
    fill(
        u"prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idprodprot, prod_prot, qtde, valo_liqu, valo_tota)"_s,
        items);
    fill(u"prop_cmrc_deta_monta (idprop_cmrc, idprop_cmrc_deta, idprod, qtde, tipo_mate_prima)"_s, materials);
    fill(u"pedi_veds_deta (idpedi_veds, idprod, qtde, valo_liqu, valo_tota)"_s, order);
  }

  struct Run {
    QByteArray document;
    QStringList statements;  ///< sorted
    int requests = 0;
  };
  /// Writes quote 123 on the connection that is open.
  Run run(void (*routine)(qint32, const QString&)) {
    print(123);
    QStringList sent;
    contexto().Conexao.setListener([&sent](const QString& statement) { sent << statement; });
    (void)server_.requests();
    build(routine, 123);
    const int requests = server_.requests();
    contexto().Conexao.setListener({});
    sent.sort();
    return {files::readAll(document()), sent, requests};
  }
  Run onServer(void (*routine)(qint32, const QString&)) {
    contexto().Conexao.close();
    for (const auto& ending : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(server_.databasePath() + ending);
    EXPECT_TRUE(QFile::copy(databasePath(), server_.databasePath()));
    contexto().Conexao.open(server_.connectionString(), 30);
    Run made = run(routine);
    contexto().Conexao.close();
    connect();
    return made;
  }

 private:
  sqlserver::TdsServer server_;
};

void word(qint32 id, const QString& path) {
  DocumentoWord(QString::number(id), path, contexto().PathDocs + u"x.pdf"_s);
}

TEST_F(Requests, DoNotGrowWithTheLines) {
  const struct {
    void (*routine)(qint32, const QString&);
    QString model;
  } cases[] = {{MontaOrcaGradeHTML, {}},       {MontaOrcaHTML, {}},
               {MontaOrcaHTML, u"1"_s},        {MontaOrcaHTML, u"3"_s},
               {MontaDetalheOrcaHTML, {}},     {MontaPedidoHTML, {}},
               {MontaPedidoHTML, u"2"_s},      {word, {}},
               {MontaDetalheOrcaHTML, u"2"_s}, {MontaDetalheOrcaHTML, u"1"_s}};
  for (const auto& one : cases) {
    for (const QString& name : {u"MODELO_PROP_CMRC"_s, u"MODELO_PEDI_VEDS"_s, u"MODELO_PEDIDO_VEDS"_s})
      parameter(name, one.model);
    int few = 0;
    for (const int count : {10, 100}) {
      SCOPED_TRACE(count);
      lines(count);
      const Run here = run(one.routine), there = onServer(one.routine);
      EXPECT_EQ(there.document, here.document);
      EXPECT_EQ(there.statements, here.statements);
      EXPECT_GT(there.statements.size(), 3 * count);
      EXPECT_LE(there.requests, 30);
      if (count == 10)
        few = there.requests;
      else
        EXPECT_EQ(there.requests, few);
    }
  }
}

}  // namespace
