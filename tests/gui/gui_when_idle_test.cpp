// SPDX-License-Identifier: GPL-3.0-or-later
// Work put off until the user pauses: keys and clicks push it back, it runs
// once, and not at all when its owner is gone.
#include "when_idle.h"

#include <QElapsedTimer>
#include <QWidget>
#include <QtTest>
#include <memory>

using tq::gui::RunWhenIdle;

class WhenIdleTest : public QObject
{
    Q_OBJECT
  private slots:
    void keysAndClicksPushTheWorkBackAndItRunsOnce()
    {
        QWidget target;
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        int runs = 0;
        QElapsedTimer clock;
        clock.start();
        qint64 ranAt = -1;
        RunWhenIdle(&target, 150, [&] {
            ++runs;
            ranAt = clock.elapsed();
        });
        // a key or a click every 60 ms for 420 ms
        for (int i = 0; i < 7; ++i) {
            QTest::qWait(60);
            if (i % 2)
                QTest::keyClick(&target, Qt::Key_A);
            else
                QTest::mouseClick(&target, Qt::LeftButton);
        }
        const qint64 lastInput = clock.elapsed();
        QCOMPARE(runs, 0);
        QTRY_COMPARE_WITH_TIMEOUT(runs, 1, 2000);
        QVERIFY2(ranAt >= lastInput + 140,
                 qPrintable(QString("ran %1 ms after the last input").arg(ranAt - lastInput)));
        QTest::keyClick(&target, Qt::Key_B);
        QTest::qWait(300);
        QCOMPARE(runs, 1);
    }

    void nothingRunsOnceTheOwnerIsGone()
    {
        auto owner = std::make_unique<QObject>();
        bool ran = false;
        RunWhenIdle(owner.get(), 50, [&] { ran = true; });
        owner.reset();
        QTest::qWait(200);
        QVERIFY(!ran);
    }
};

QTEST_MAIN(WhenIdleTest)
#include "gui_when_idle_test.moc"
