#include "support/sha256.h"

#include "testing/memory_file_system.h"

namespace kivu::support {
namespace {

TEST(Sha256, GivesThePublishedExamples) {
    EXPECT_EQ(Sha256::Of("abc"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Sha256::Of("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
}

TEST(Sha256, PadsTextsOfEveryLength) {
    const std::vector<std::pair<std::size_t, std::string>> sums{
        {0, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {1, "ca978112ca1bbdcafac231b39a23dc4da786eff8147c4e72b9807785afee48bb"},
        {55, "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318"},
        {56, "b35439a4ac6f0948b6d6f9e3c6af0f5f590ce20f1bde7090ef7970686ec6738a"},
        {57, "f13b2d724659eb3bf47f2dd6af1accc87b81f09f59f2b75e5c0bed6589dfe8c6"},
        {63, "7d3e74a05d7db15bce4ad9ec0658ea98e3f06eeecf16b4c6fff2da457ddc2f34"},
        {64, "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb"},
        {65, "635361c48bb9eab14198e76ea8ab7f1a41685d6ad62aa9146d301d4f17eb0ae0"},
        {119, "31eba51c313a5c08226adf18d4a359cfdfd8d2e816b13f4af952f7ea6584dcfb"},
        {120, "2f3d335432c70b580af0e8e1b3674a7c020d683aa5f73aaaedfdc55af904c21c"},
        {128, "6836cf13bac400e9105071cd6af47084dfacad4e5e302c94bfed24e013afb73e"},
        {1000, "41edece42d63e8d9bf515a9ba6932e1c20cbc9f5a5d134645adb5db1b9737ea3"},
    };
    for (const auto& [length, sum] : sums) {
        const std::string text(length, 'a');
        EXPECT_EQ(Sha256::Of(text), sum) << length;
        Sha256 inPieces;
        for (const char& byte : text)
            inPieces.Take({&byte, 1});
        EXPECT_EQ(inPieces.Result(), sum) << length;
    }
}

TEST(Sha256, ReadsAFileOfManyBlocks) {
    std::string bytes;
    for (int at = 0; at < 256000; ++at)
        bytes += static_cast<char>(at);
    testing::MemoryFileSystem files;
    ASSERT_FALSE(files.WriteFile("/large", bytes));
    EXPECT_EQ(Sha256::OfFile(files, "/large"),
              "b57b64b198d5d59ce5a22a9b9f25e72a7d081476d432051aa923f3dbebb90934");
    EXPECT_EQ(Sha256::OfFile(files, "/missing"), std::nullopt);
    EXPECT_EQ(Sha256::OfFile(files, "/"), std::nullopt);
}

}  // namespace
}  // namespace kivu::support
