// Prints how many milliseconds a list of 10,000 rows takes in Qt's list widget until it is shown, as the widget comes
// and told that all rows are of one height, and how many bytes of heap a row of it takes.

#include "Measure.h"

#include <QApplication>
#include <QListWidget>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace {

constexpr int ROWS = 10'000;

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void append(QListWidget& list)
{
    for (int row = 0; row < ROWS; ++row) {
        char text[32];
        std::snprintf(text, sizeof text, "Entry %05d", row);
        list.addItem(QString::fromUtf8(text));
    }
}

double milliseconds(bool oneHeight)
{
    QListWidget list;
    list.setUniformItemSizes(oneHeight);
    list.resize(240, 128);
    list.show();
    QApplication::processEvents();
    const auto start = bench::Clock::now();
    append(list);
    QApplication::processEvents();
    list.grab();
    return bench::secondsSince(start) * 1e3;
}

double bytesPerRow()
{
    QListWidget list;
    const double before = heapInUse();
    append(list);
    return (heapInUse() - before) / ROWS;
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    milliseconds(true); // what is made once
    const double measuringEach = milliseconds(false);
    std::printf("%f %f %f\n", measuringEach, milliseconds(true), bytesPerRow());
    return 0;
}
