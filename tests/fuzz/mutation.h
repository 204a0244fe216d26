#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tessaplot::fuzz {

/// Spoils inputs in the ways that files and texts are spoiled; the same seed gives the same inputs.
class Mutator {
 public:
    Mutator(std::vector<std::string> inputs, unsigned seed) : inputs_(std::move(inputs)), random_(seed) {}

    std::string next() {
        std::string input = inputs_[below(inputs_.size())];
        for (std::size_t changes = 1 + below(4); changes > 0; --changes)
            change(input);
        return input;
    }

 private:
    // clang-format off
    static constexpr std::string_view tokens[] = {
        "-1", "0", "1", "2", "3", "50", "51", "65536", "2147483647", "-2147483648", "3000000000", "1E308", "1E400",
        "-1E-400", "1E", ".", "-", "0.12345", "nan", "@", "@a@", " ", "  ", "", "\t", "\r\n", ",", "(", ")", "^",
        "SIN(", std::string_view("\0\0\0\0", 4), "\xff\xff\xff\xff", "\xc3\xa9"};
    // clang-format on

    std::size_t below(std::size_t count) { return count == 0 ? 0 : random_() % count; }
    std::string_view token() { return tokens[below(std::size(tokens))]; }

    void change(std::string& input) {
        const std::size_t at = below(input.size() + 1);
        switch (below(6)) {
            case 0:
                if (at < input.size()) input[at] = static_cast<char>(random_());
                break;
            case 1:
                input.erase(at, 1 + below(12));
                break;
            case 2:
                input.insert(at, token());
                break;
            case 3:
                replaceToken(input, at);
                break;
            case 4:
                input.insert(at, input.substr(below(input.size()), below(40)));
                break;
            default:
                splice(input, at);
        }
    }

    void replaceToken(std::string& input, std::size_t at) {
        const std::size_t blank = at == 0 ? std::string::npos : input.rfind(' ', at - 1);
        const std::size_t start = blank == std::string::npos ? 0 : blank + 1;
        input.replace(start, input.find(' ', start) - start, token());
    }

    void splice(std::string& input, std::size_t at) {
        const std::string& other = inputs_[below(inputs_.size())];
        input.replace(at, std::string::npos, other, std::min(at, other.size()));
    }

    std::vector<std::string> inputs_;
    std::mt19937 random_;
};

}  // namespace tessaplot::fuzz
