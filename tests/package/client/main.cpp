#include <CorvelGui/Ruler>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    CorvelGui::Ruler ruler;
    ruler.setBodyColor(Hueloft::POrvGuiTheme::colorShark);
    ruler.setTimeLimits(1'772'409'600'000, 1'772'409'600'000 + 30LL * 86'400'000);
    ruler.changeLevel(7, 0.5);
    std::printf("%d days in view\n", int((ruler.endTime() - ruler.beginTime()) / 86'400'000));
    return ruler.grab().isNull() ? 1 : 0;
}
