#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <ctime>

#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::GridModel;

class Grid : public FormTest {
 protected:
  GridModel& grid() { return sample.Flex->grid(); }
  QString column(int column) {
    QStringList cells;
    for (int row = 1; row < grid().rows(); ++row) cells << grid().text(row, column);
    return cells.join(u'|');
  }
  QList<int> selected() {
    QList<int> rows;
    for (const QModelIndex& index : sample.Flex->selectionModel()->selectedRows()) rows << index.row() + 1;
    return rows;
  }
};

TEST_F(Grid, TakesRowsAndKeepsTheCurrentOne) {
  grid().addItem(u"1\tAna\t3\tsurplus\tfields"_s);
  EXPECT_EQ(grid().row(), 0);
  EXPECT_TRUE(selected().isEmpty());
  grid().setRow(1);
  grid().addItem(u"2"_s);
  EXPECT_EQ(grid().row(), 1);
  EXPECT_EQ(grid().rows(), 3);
  EXPECT_EQ(grid().text(2, 1), QString());
  EXPECT_EQ(grid().text(0, 1), u"Nome"_s);
  EXPECT_EQ(grid().text(9, 9), QString());
  grid().setText(9, 9, u"x"_s);
  EXPECT_EQ((forms::RowBuilder() << u"a\tb"_s << u""_s << u"c"_s).text(), u"a b\t\tc\t"_s);
}

TEST_F(Grid, RemovesRowsAndTheViewFollowsTheCurrentOne) {
  for (const auto* row : {u"1", u"2", u"3"}) grid().addItem(QString::fromUtf16(row));
  grid().setRow(2);
  grid().removeItem(1);
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(selected(), QList<int>{2});
  grid().removeItem(2);
  EXPECT_EQ(grid().row(), 1);
  EXPECT_EQ(selected(), QList<int>{1});
  grid().removeItem(0);
  grid().removeItem(1);
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_EQ(grid().row(), 0);
}

TEST_F(Grid, SortsStablyByValueWithBlanksFirstAndFormatsMoveAlong) {
  for (const auto* row : {u"10\ta", u"9\tb", u"x\tc", u"9\td", u"\te", u"1,5\tf", u"É\tg", u"B\th"}) {
    grid().addItem(QString::fromUtf16(row));
  }
  grid().setCellBackColor(3, 1, Qt::red);
  grid().setCellAlignment(3, 1, Qt::AlignTop);
  grid().sortAscending(0);
  EXPECT_EQ(column(0), u"|1,5|9|9|10|B|x|É"_s);
  EXPECT_EQ(column(1), u"e|f|b|d|a|h|c|g"_s);
  EXPECT_EQ(grid().cellBackColor(7, 1), QColor(Qt::red));
  EXPECT_FALSE(grid().cellBackColor(3, 1).isValid());
  EXPECT_EQ(grid().cellAlignment(7, 1), Qt::AlignTop);
}

TEST_F(Grid, ClicksSetTheCurrentRowAndEmptyGroundChangesNothing) {
  grid().addItem(u"1\tAna\t3"_s);
  grid().addItem(u"2\tBia\t4"_s);
  support::clickRow(sample.Flex, 2, 2);
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(grid().col(), 2);
  sample.taken();
  QTest::mouseClick(sample.Flex->viewport(), Qt::LeftButton, {},
                    QPoint(20, sample.Flex->viewport()->height() - 4));
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(sample.taken(), QString());
  support::doubleClick(sample.Flex, 0, 1);
  EXPECT_EQ(grid().row(), 0);
  EXPECT_TRUE(selected().isEmpty());
  EXPECT_TRUE(sample.taken().endsWith(u"Flex!!"_s));
  support::doubleClick(sample.Flex, 1, 1);
  EXPECT_EQ(sample.taken(), u"Flex! Flex!!"_s);
}

TEST_F(Grid, KeysMoveChooseAndCopy) {
  grid().addItem(u"1\tAna\t3"_s);
  grid().addItem(u"2\tBia\t4"_s);
  support::focus(sample.Flex);
  sample.taken();
  support::key(sample.Flex, Qt::Key_Return);  // no row is current yet
  support::key(sample.Flex, Qt::Key_Down);
  support::key(sample.Flex, Qt::Key_Down);
  support::key(sample.Flex, Qt::Key_Down);
  EXPECT_EQ(grid().row(), 2);
  support::key(sample.Flex, Qt::Key_Return);
  EXPECT_EQ(sample.taken(), u"Flex!!"_s);
  support::key(sample.Flex, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"Bia\t4"_s);
}

TEST_F(Grid, TopRowFollowsTheViewAndTheOtherWay) {
  for (int row = 1; row <= 200; ++row) grid().addItem(QString::number(row));
  support::settle();
  grid().setTopRow(120);
  EXPECT_EQ(sample.Flex->verticalScrollBar()->value(), 119);
  sample.Flex->verticalScrollBar()->setValue(9);
  EXPECT_EQ(grid().topRow(), 10);
}
