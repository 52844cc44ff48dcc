#include <gtest/gtest.h>

#include "platform/data/one_statement.h"

using namespace Qt::StringLiterals;

using data::Statements;

namespace {

Statements read(QStringView sql) { return data::readStatement({sql.toString()}).read; }

TEST(OneStatement, IsWhatTheProgramSays) {
  for (const QStringView sql :
       {u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='1' ORDER BY 2;",
        u"insert into t (a,[delete]) values ('x; delete from t -- /*', N'it''s', -1.5, 0x1F, 1e+5)",
        u"INSERT INTO t SELECT a FROM u WHERE b IN(SELECT c FROM d UNION ALL SELECT 1) AND x=(SELECT 2)",
        u"UPDATE t SET delete_at=CASE WHEN \"drop\"=1 THEN 'end' ELSE null END, a_update='' WHERE (id=1)",
        u"delete t where EXISTS (SELECT CASE CASE 1 WHEN 2 THEN 3 END WHEN 4 THEN (SELECT 5) END) ; ;",
        u"SELECT @@identity as 'MaxPropCmrc'", u"SELECT COALESCE((SELECT 1),2) AS n_ç, @delete, #drop",
        u"SELECT 1 ORDER BY 1 OFFSET 5 ROWS FETCH NEXT 5 ROWS ONLY", u"DROP TABLE IF EXISTS t",
        u"WITH x AS (SELECT 1 a) SELECT a FROM x", u"ALTER TABLE t ADD b int", u"", u"BEGIN TRANSACTION",
        u"CREATE TRIGGER z AFTER INSERT ON t BEGIN UPDATE t SET a=1; END", u"EXPLAIN QUERY PLAN SELECT 1"})
    EXPECT_EQ(read(sql), Statements::One) << sql.toUtf8().toStdString();
}

TEST(OneStatement, IsNotWhatAServerWouldReadAsMore) {
  for (const QStringView tail : {u"x'; delete from t; --",
                                 u"x' delete from t where a='",
                                 u"x' -- ",
                                 u"x' /* ",
                                 u"x';delete t where a='",
                                 u"x' exec sp_who '",
                                 u"x'drop table t exec '",
                                 u"x' where 1=1delete from t where a='",
                                 u"x' where b=1e5drop table t print'",
                                 u"x' set rowcount 1 print'",
                                 u"x' select 1 a where '1'='",
                                 u"x' (select 1) union select'",
                                 u"x' end conversation '",
                                 u"x' disable trigger z on t print '",
                                 u"x' {call sp_who} where a='",
                                 u"x'\u00A0delete\u00A0from t where a='",
                                 u"x'\u3000delete t where a='",
                                 u"x' \u0001delete t where a='",
                                 u"x' where a=`'`;delete from t where b='",
                                 u"x' where a=e'\\'' or b='",
                                 u"x' where a=$$'$$ or b='",
                                 u"x' if 1=1 print '",
                                 u"x' add signature to t by '",
                                 u"x' where [a]=\"b\" kill '",
                                 u"x' with (nolock) waitfor delay '",
                                 u"x';;'",
                                 u"x'+(SELECT 1 FROM OPENQUERY(s,'delete t'))+'"}) {
    for (const QString& sql :
         {u"UPDATE t SET a='%1' WHERE (id=1)"_s.arg(tail), u"insert into t (a) values ('%1')"_s.arg(tail),
          u"SELECT a FROM t WHERE a IN (SELECT b FROM u) AND c='%1'"_s.arg(tail)})
      EXPECT_EQ(read(sql), Statements::More) << sql.toStdString();
  }
  for (const QStringView sql :
       {u"INSERT INTO t (a) VALUES ('x') SELECT 1", u"INSERT INTO t SELECT 1 SELECT 2", u"SELECT 1; SELECT 2",
        u"UPDATE t SET a=1 SET a=2", u";SELECT 1"})
    EXPECT_EQ(read(sql), Statements::More) << sql.toUtf8().toStdString();
}

TEST(OneStatement, FindsQuotesThatDoNotPair) {
  for (const QStringView sql :
       {u"SELECT 'D'Ávila'", u"SELECT [a]]", u"SELECT \"a", u"SELECT N'x''; delete t"})
    EXPECT_EQ(read(sql), Statements::Unpaired) << sql.toUtf8().toStdString();
}

}  // namespace
