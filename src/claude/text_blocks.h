#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace tidewatch {

inline constexpr std::size_t textBlockSize = 64;

/// One bit per byte of a block, the lowest for the first byte.
using BlockMask = std::uint64_t;

/// Which bytes of a block matter to the syntax of JSON strings.
struct StringMasks {
    BlockMask quotes;
    BlockMask backslashes;
    bool hasControls;  ///< whether there are control characters, which a string must not contain
};

/// Looks at blocks of text with the instructions that every processor has. As for the other variant below,
/// a block may begin anywhere.
struct PlainBlocks {
    [[nodiscard]] static StringMasks stringMasks(const char* block) {
        return {
            maskOf(block, [](const char* text) { return load(text) == '"'; }),
            maskOf(block, [](const char* text) { return load(text) == '\\'; }),
            maskOf(block,
                   [](const char* text) {
                       const auto bytes = load(text);
                       return (bytes >= 0) & (bytes < 0x20);
                   }) != 0,
        };
    }

    /// The letters that make an escape with a backslash before them, except the u.
    [[nodiscard]] static BlockMask escapeLetters(const char* block) {
        return maskOf(block, [](const char* text) {
            const auto bytes = load(text);
            return (bytes == '"') | (bytes == '\\') | (bytes == '/') | (bytes == 'b') | (bytes == 'f') |
                   (bytes == 'n') | (bytes == 'r') | (bytes == 't');
        });
    }

    /// Whether a g, a 6 or a 7 and two bytes later a quote stand anywhere; seldom another pair. As for the
    /// next one, two bytes after the block must be readable.
    [[nodiscard]] static bool mayEndUsage(const char* block) {
        return maskOf(block, [](const char* text) { return isUsageEnd(text); }) != 0;
    }

    /// Where such a pair stands with an e or a 5 between its bytes; seldom another one.
    [[nodiscard]] static BlockMask usageEnds(const char* block) {
        return maskOf(block,
                      [](const char* text) { return isUsageEnd(text) & ((load(text + 1) | 0x50) == 'u'); });
    }

private:
    static constexpr std::size_t vectorSize = 16;
    using Vector [[gnu::vector_size(vectorSize)]] = signed char;

    static Vector load(const char* text) {
        Vector bytes;
        std::memcpy(&bytes, text, vectorSize);
        return bytes;
    }

    // Of the bits of g, 6 and 7, and of hardly anything else in a text, these make a w.
    static Vector isUsageEnd(const char* text) {
        return ((load(text) | 0x51) == 'w') & (load(text + 2) == '"');
    }

    template <class Test>
    static BlockMask maskOf(const char* block, Test test) {
        BlockMask mask = 0;
        for (std::size_t i = 0; i < textBlockSize; i += vectorSize) {
            mask |= bitsOf(test(block + i)) << i;
        }
        return mask;
    }

    static BlockMask bitsOf(const Vector& matches) {
#if defined(__x86_64__)
        return static_cast<std::uint32_t>(_mm_movemask_epi8(reinterpret_cast<__m128i>(matches)));
#else
        BlockMask bits = 0;
        for (std::size_t i = 0; i < vectorSize; ++i) bits |= BlockMask(matches[i] & 1) << i;
        return bits;
#endif
    }
};

#if defined(__x86_64__)

/// The same with AVX2, which takes half the time. Only for processors that have it.
struct WideBlocks {
    [[nodiscard]] static bool isSupported() {
        return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi");
    }

    [[nodiscard, gnu::target("avx2")]] static StringMasks stringMasks(const char* block) {
        const auto low = load(block);
        const auto high = load(block + vectorSize);
        return {
            maskOf(isEqual(low, '"'), isEqual(high, '"')),
            maskOf(isEqual(low, '\\'), isEqual(high, '\\')),
            hasControls(_mm256_min_epu8(low, high)),
        };
    }

    [[nodiscard, gnu::target("avx2")]] static BlockMask escapeLetters(const char* block) {
        return maskOf(isEscapeLetter(load(block)), isEscapeLetter(load(block + vectorSize)));
    }

    [[nodiscard, gnu::target("avx2")]] static bool mayEndUsage(const char* block) {
        const auto any = _mm256_or_si256(isUsageEnd(block), isUsageEnd(block + vectorSize));
        return _mm256_testz_si256(any, any) == 0;
    }

    [[nodiscard, gnu::target("avx2")]] static BlockMask usageEnds(const char* block) {
        return maskOf(_mm256_and_si256(isUsageEnd(block), isUsageMiddle(block)),
                      _mm256_and_si256(isUsageEnd(block + vectorSize), isUsageMiddle(block + vectorSize)));
    }

private:
    static constexpr std::size_t vectorSize = 32;

    [[gnu::target("avx2")]] static __m256i load(const char* text) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(text));
    }
    [[gnu::target("avx2")]] static __m256i isEqual(__m256i bytes, char c) {
        return _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8(c));
    }
    [[gnu::target("avx2")]] static bool hasControls(__m256i bytes) {
        const auto controls = _mm256_cmpeq_epi8(_mm256_min_epu8(bytes, _mm256_set1_epi8(0x1f)), bytes);
        return _mm256_movemask_epi8(controls) != 0;
    }
    [[gnu::target("avx2")]] static __m256i isEscapeLetter(__m256i bytes) {
        // One bit for each upper half of these letters, looked up by the lower half and by the upper one.
        constexpr char of2 = 1, of5 = 2, of6 = 4, of7 = 8;
        const auto byLower =
            both(_mm_setr_epi8(0, 0, of2 | of6 | of7, 0, of7, 0, of6, 0, 0, 0, 0, 0, of5, 0, of6, of2));
        const auto byUpper = both(_mm_setr_epi8(0, 0, of2, 0, 0, of5, of6, of7, 0, 0, 0, 0, 0, 0, 0, 0));
        const auto upper = _mm256_and_si256(_mm256_srli_epi16(bytes, 4), _mm256_set1_epi8(0x0f));
        const auto match =
            _mm256_and_si256(_mm256_shuffle_epi8(byLower, bytes), _mm256_shuffle_epi8(byUpper, upper));
        return _mm256_cmpgt_epi8(match, _mm256_setzero_si256());
    }
    [[gnu::target("avx2")]] static __m256i both(__m128i half) { return _mm256_broadcastsi128_si256(half); }
    [[gnu::target("avx2")]] static __m256i isUsageEnd(const char* text) {
        const auto first = _mm256_or_si256(load(text), _mm256_set1_epi8(0x51));
        return _mm256_and_si256(isEqual(first, 'w'), isEqual(load(text + 2), '"'));
    }
    [[gnu::target("avx2")]] static __m256i isUsageMiddle(const char* text) {
        return isEqual(_mm256_or_si256(load(text + 1), _mm256_set1_epi8(0x50)), 'u');
    }
    [[gnu::target("avx2")]] static BlockMask maskOf(__m256i low, __m256i high) {
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(low)) |
               BlockMask(static_cast<std::uint32_t>(_mm256_movemask_epi8(high))) << vectorSize;
    }
};

#else
struct WideBlocks : PlainBlocks {
    [[nodiscard]] static bool isSupported() { return false; }
};
#endif

}  // namespace tidewatch
