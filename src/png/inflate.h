#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

#include "png/bytes.h"
#include "png/huffman.h"

namespace kivu::png {

enum class InflateResult {
    Good = 0,
    // Block type 3, a tree that can't be built, or input that ends too early.
    Malformed = -1,
    // A stored block whose length and its complement differ; it is copied all the same.
    BadComplement = -2,
    // A code length is to be repeated before there is one.
    NoPreviousLength = -5,
    // A repetition passes the number of code lengths.
    TooManyLengths = -6,
};

// Undoes DEFLATE (RFC 1951). Every input ends in a result, and all output before a fault stays.
class Inflater {
 public:
    // treeFailed is called each time a code tree can't be built; givenUp is asked before each
    // block, and true ends the output there.
    explicit Inflater(std::function<void()> treeFailed = {}, std::function<bool()> givenUp = {});

    struct Outcome {
        InflateResult result;
        std::size_t written;
    };
    // input: the blocks, without a wrapper in front; bytes behind the last block are not looked
    // at. Ends silently, with a Good result, where a match or a stored block would pass the end
    // of output. The bytes of output behind the written ones may hold anything afterwards.
    // extended: a match of length 258 is followed by 16 bits that hold its length less 3.
    Outcome Inflate(std::span<const std::uint8_t> input, std::span<std::uint8_t> output,
                    bool extended = false);

    // The same into a buffer of its own that is cut to what was written. It has room for
    // expectedSize + 100 bytes, but never for more than the input can fill.
    struct Inflated {
        InflateResult result;
        ByteBuffer bytes;
    };
    Inflated Inflate(std::span<const std::uint8_t> input, std::uint64_t expectedSize,
                     bool extended = false);

 private:
    struct Trees {
        Trees();
        DecodeTable literals;
        DecodeTable distances;
    };
    struct Stream;
    // What a block says about the stream behind it.
    enum class Next { Block, Stop };

    Next OneBlock(Stream& stream, unsigned type);
    Next StoredBlock(Stream& stream);
    Next CompressedBlock(Stream& stream, const Trees& trees);
    Next ReadTrees(Stream& stream);
    Next ReadCodeLengths(Stream& stream, std::span<std::uint8_t> lengths);
    Next TreeFailure(Stream& stream);
    const Trees& StaticTrees();

    std::function<void()> treeFailed;
    std::function<bool()> givenUp;
    DecodeTable codeLengths;
    Trees dynamicTrees;
    Trees staticTrees;
    bool staticTreesBuilt = false;
};

}  // namespace kivu::png
