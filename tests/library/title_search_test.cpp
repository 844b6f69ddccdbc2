#include "library/title_search.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "forms/form.h"
#include "text/collation.h"

namespace kivu::library {
namespace {

using std::string;

RowNumbers RowsWith(std::string_view text, const std::vector<string>& rows, std::size_t start = 0) {
    JoinedRows joined;
    joined.Take(rows);
    return joined.Find(SearchWords(text), start);
}

TEST(JoinedRows, GiveTheNumbersOfMatchingRows) {
    const std::vector<string> rows = {"Ant", "", "Giant ant", "Bee", "ant\r", "Jäger", "J\xE4ger"};
    EXPECT_EQ(RowsWith("ant", rows), (RowNumbers{0, 2, 4}));
    EXPECT_EQ(RowsWith("ant", rows, 1), (RowNumbers{2, 4}));
    EXPECT_EQ(RowsWith("ant", rows, 5), RowNumbers{});
    EXPECT_EQ(RowsWith("ant", rows, 99), RowNumbers{});
    EXPECT_EQ(RowsWith("ant gi", rows), RowNumbers{2});
    EXPECT_EQ(RowsWith("JÄGER", rows), (RowNumbers{5, 6}));
    EXPECT_EQ(RowsWith("ä", rows), (RowNumbers{5, 6}));
    EXPECT_EQ(RowsWith("", rows), (RowNumbers{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(RowsWith("a", {}), RowNumbers{});
}

TEST(JoinedRows, AWordNeverGoesAcrossRows) {
    EXPECT_EQ(RowsWith("tb", {"ant", "bee"}), RowNumbers{});
    EXPECT_EQ(RowsWith("t\nb", {"ant", "bee", "t\nb"}), RowNumbers{});
    EXPECT_EQ(RowsWith("a c", {"a\nb\nc", "c"}), RowNumbers{0});
}

TEST(JoinedRows, FindRowsThatLieFarApart) {
    std::vector<string> rows(5000, "Nothing of the kind");
    for (const std::size_t row : {0, 3, 4, 5, 700, 701, 4999})
        rows[row] = "An ant";
    EXPECT_EQ(RowsWith("ant", rows), (RowNumbers{0, 3, 4, 5, 700, 701, 4999}));
}

class TextOrder : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        ++comparisons;
        return text::CompareText(a, b);
    }
    mutable long comparisons = 0;
};

// A list of titles and its results.
class TitleSearchTest : public testing::Test {
 protected:
    std::vector<string> Search(std::string_view text, std::size_t start = 0) {
        results.Clear();
        EXPECT_EQ(results.ListCount(), 0);
        EXPECT_EQ(results.ListIndex(), -1);
        search.Find(text, start);
        search.FillResults();
        return results.Rows();
    }
    // What a list gives that copies and sorts all at each key.
    std::vector<string> Plainly(std::string_view text, std::size_t start = 0) {
        plain.Clear();
        const SearchWords words(text);
        for (std::size_t row = start; row < titles.Rows().size(); ++row) {
            if (words.AreIn(titles.Rows()[row])) plain.AddItem(titles.Rows()[row]);
        }
        return plain.Rows();
    }
    // Titles of few letters, so that many are equal but for case.
    void FillTitles(int count, unsigned seed) {
        std::mt19937 random(seed);
        const string letters = "aAbB ä";
        std::vector<string> rows;
        for (int i = 0; i < count; ++i) {
            string title(random() % 6, ' ');
            for (char& c : title)
                c = letters[random() % letters.size()];
            rows.push_back(std::move(title));
        }
        titles.AddItems(std::move(rows));
    }

    TextOrder order;
    forms::Form form{"Form", forms::Toolkit{nullptr, &order, nullptr}};
    forms::ListBox titles{&form, "Titles", forms::ListControl::Order::asAdded};
    forms::ListBox results{&form, "Results", forms::ListControl::Order::sorted};
    forms::ListBox plain{&form, "Plain", forms::ListControl::Order::sorted};
    TitleSearch search{titles, results};
};

TEST_F(TitleSearchTest, GivesWhatAPlainSearchAtEachKeyGives) {
    std::mt19937 random(5);
    const string keys = "aaabB  ";
    for (const int count : {0, 10, 255, 256, 257, 900}) {
        titles.Clear();
        FillTitles(count, static_cast<unsigned>(count));
        string text;
        for (int key = 0; key < 150; ++key) {
            const bool back = text.size() > 4 || random() % 4 == 0;
            if (back && !text.empty()) {
                text.pop_back();
            } else {
                text += keys[random() % keys.size()];
            }
            const std::size_t start = random() % 5 == 0 ? random() % 300 : 0;
            ASSERT_EQ(Search(text, start), Plainly(text, start)) << '"' << text << "\" " << start;
        }
    }
}

TEST_F(TitleSearchTest, GivesTheRowsInRisingOrder) {
    titles.AddItems({"Zebra", "ant", "Bee", "Ant"});
    EXPECT_EQ(search.Find("a", 0), (RowNumbers{0, 1, 3}));
    EXPECT_EQ(search.Find("an", 0), (RowNumbers{1, 3}));
    EXPECT_EQ(search.Find("an", 2), RowNumbers{3});
    EXPECT_EQ(search.Find("an", 0), (RowNumbers{1, 3}));
    EXPECT_EQ(search.Find("an", 99), RowNumbers{});
}

TEST_F(TitleSearchTest, ManyResultsCostNoComparisonsOnceTheTitlesAreInOrder) {
    std::vector<string> rows;
    for (int i = 10000; i < 12000; ++i)
        rows.push_back("Title " + std::to_string(i * 7919 % 12007) + " of a game that is long");
    titles.AddItems(std::move(rows));
    ASSERT_EQ(Search("title").size(), 2000U);
    ASSERT_EQ(Search("title of 1").size(), Plainly("title of 1").size());
    order.comparisons = 0;
    ASSERT_GT(Search("tit of").size(), 1999U);
    EXPECT_EQ(order.comparisons, 0);
}

TEST_F(TitleSearchTest, ATitleWithALineEndIsFoundAsItIs) {
    FillTitles(1000, 1);
    titles.AddItem("a\nb");
    titles.AddItem("c a");
    EXPECT_EQ(Search("a"), Plainly("a"));
}

TEST_F(TitleSearchTest, ResultsStayWhenTheTitlesGo) {
    FillTitles(1000, 1);
    const std::vector<string> rows = Plainly("a");
    ASSERT_GT(rows.size(), 300U);
    results.Clear();
    search.Find("a", 0);
    search.FillResults();
    titles.Clear();
    EXPECT_EQ(results.Rows(), rows);
}

TEST_F(TitleSearchTest, NewTitlesAreSearchedAnew) {
    FillTitles(1000, 1);
    Search("a");
    titles.SetList(3, "Xerxes a");
    EXPECT_EQ(Search("xe a"), std::vector<string>{"Xerxes a"});
    titles.Clear();
    EXPECT_TRUE(Search("xe a").empty());
    FillTitles(1000, 2);
    EXPECT_EQ(Search("a"), Plainly("a"));
}

TEST_F(TitleSearchTest, ResultsThatSomebodyElseChangesAreFilledAnew) {
    FillTitles(1000, 1);
    const std::vector<string> rows = Search("a");
    results.RemoveItem(7);
    EXPECT_EQ(Search("a"), rows);
    results.Clear();
    EXPECT_EQ(Search("a"), rows);
    results.AddItem("x");
    results.SetListIndex(2);
    EXPECT_EQ(Search("a"), rows);
}

TEST_F(TitleSearchTest, ASearchWithinASearchLeavesOneResult) {
    FillTitles(1000, 1);
    results.Clear();
    search.Find("a", 0);
    // The first hit's click may search itself.
    const std::vector<string> within = Search("b");
    search.FillResults();
    EXPECT_EQ(results.Rows(), within);
}

}  // namespace
}  // namespace kivu::library
