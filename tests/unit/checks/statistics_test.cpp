#include "core/checks/statistics.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

class StatisticsTest : public test::CheckTest {
 protected:
  LanguageStatistics Statistics(int language) const {
    return StatisticsOf(Basis(), languages_.at(static_cast<std::size_t>(language)).texts);
  }
};

TEST_F(StatisticsTest, CountEveryMessageOnce) {
  Add("Allarme", "Alarm");
  Add("Moneta", "Coin");
  Add("Acqua", "Water");
  Add("Lift", "Lift");
  Add("    Executive   ", "Executive");
  Add("", "");
  Add("Lingua", "");
  Add("Prezzo       þþþ", "             þþþ");
  const LanguageStatistics statistics = Statistics(kChecked);
  EXPECT_EQ(statistics.translated, 3U);
  EXPECT_EQ(statistics.same, 3U);
  EXPECT_EQ(statistics.blank, 2U);
}

TEST_F(StatisticsTest, OfTheOriginAreAllTheSame) {
  Add("Allarme", "Alarm");
  Add("", "");
  EXPECT_EQ(Statistics(kOrigin).same, 2U);
}

}  // namespace
}  // namespace vendlingua
