// The curtains of the diploma, key by key or by the mouse.

#include <gtest/gtest.h>

#include "headless/Headless.h"
#include "headless/MemoryFiles.h"
#include "windows/frmDiploma.h"

namespace juego {
namespace {

TEST(Diploma, OpensWithTheEightySeventhKeyForGood) {
    platform::headless::MemoryFiles files;
    platform::headless::Headless headless(files);
    const Services services = headless.Services();
    Zarpi z;
    const Text date = u"7-3-2004";
    frmDiploma diploma(z, services.Forms, services.Printer, services.Media, date);
    services.Forms.Show(diploma);
    const auto press = [&headless](int code) { headless.screen.Press(PlainKey(code)); };
    for (int i = 0; i < 84; ++i) press(KeyLeft);
    headless.screen.Click(diploma.Picture2);
    headless.screen.Click(diploma.Picture3);
    EXPECT_EQ(diploma.Picture2.Width, 240);
    EXPECT_TRUE(diploma.KeyPreview);
    press(KeyLeft);
    EXPECT_EQ(diploma.Picture2.Width, 180);
    EXPECT_EQ(diploma.Picture3.Left, 11050);
    EXPECT_FALSE(diploma.KeyPreview);
    press(KeyRight);
    EXPECT_EQ(diploma.Picture2.Width, 180);
}

}  // namespace
}  // namespace juego
