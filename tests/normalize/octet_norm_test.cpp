// The comparison forms of text in the 8-bit sets.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "normalize/character_norm.h"

namespace cantorel {
namespace {

std::string Norm(std::string_view text, char set, bool trim = true) {
  std::string norm;
  AppendOctetNorm(text, trim, set, norm);
  return norm;
}

struct Row {
  std::string_view norm;
  std::string_view octets;  // hexadecimal, single or first-last
};

constexpr std::string_view kUntold = "untold";

// The table printed by form: every octet must stand in it once.
std::array<std::string, 256> ByOctet(const std::vector<Row>& rows) {
  std::array<std::string, 256> norms;
  norms.fill(std::string(kUntold));
  for (const Row& row : rows) {
    std::istringstream stream{std::string(row.octets)};
    for (std::string item; stream >> item;) {
      const unsigned long first = std::stoul(item.substr(0, 2), nullptr, 16);
      const unsigned long last = item.size() > 2 ? std::stoul(item.substr(3), nullptr, 16) : first;
      for (unsigned long octet = first; octet <= last; ++octet) {
        EXPECT_EQ(norms[octet], kUntold) << item;
        norms[octet] = row.norm == "0" || row.norm == "A.."
                           ? std::string(1, static_cast<char>(row.norm[0] + octet - first))
                           : std::string(row.norm);
      }
    }
  }
  return norms;
}

const std::vector<Row> kSetV = {
    {"0", "30-39 C0-C9 D0-D9"},
    {"A..", "41-5A 61-7A"},
    {"A", "AF"},
    {"B", "BE"},
    {"G", "BF"},
    {"D", "A3 B3 BA"},
    {"I", "B8"},
    {"L", "A0 A1 B1"},
    {"O", "A2 AC B2 BC"},
    {"U", "AD BD"},
    {"TH", "A4 B4"},
    {"AE", "A5 B5"},
    {"OE", "A6 B6"},
    {"\xA9", "A9"},
    {"#", "23"},
    {"&", "26"},
    {"+", "2B"},
    {" ", "00-1A 1C-1E 20-22 24 25 28-2A 2C-2F 3A-40 5C 7B 7D 87 AA AB B9 CA-CD DA-DD"},
    {"", "27 5B 5D-60 7C 7E-86 88-9F A7 A8 AE B0 B7 BB CE CF DE-FF"},
};

const std::vector<Row> kSetsMAndO = {
    {"0", "30-39"},
    {"A..", "41-5A 61-7A"},
    {"D", "A3 B3 BA"},
    {"I", "B8"},
    {"L", "A1 B1 BE C0 C1"},
    {"O", "A2 AC B2 BC"},
    {"U", "AD BD"},
    {"TH", "A4 B4"},
    {"AE", "A5 B5"},
    {"OE", "A6 B6"},
    {"\xA9", "A9"},
    {"#", "23"},
    {"&", "26"},
    {"+", "2B"},
    {" ", "20-22 24 25 28-2A 2C-2F 3A-40 5C 7B 7D AA B9"},
    {"", "00-1A 1C-1E 27 5B 5D-60 7C 7E-A0 A7 A8 AB AE-B0 B7 BB BF C2-FF"},
};

TEST(OctetNorm, EveryOctet) {
  for (const auto& [sets, rows] :
       {std::pair<std::string_view, const std::vector<Row>&>{"V", kSetV}, {"MO", kSetsMAndO}}) {
    const std::array<std::string, 256> expected = ByOctet(rows);
    for (unsigned octet = 0; octet < 256; ++octet) {
      if (octet == 0x1B || octet == 0x1F) {
        EXPECT_EQ(expected[octet], kUntold);
        continue;
      }
      for (char set : sets) {
        EXPECT_EQ(Norm(std::string(1, static_cast<char>(octet)), set, false), expected[octet])
            << "set " << set << ", octet " << octet;
      }
    }
  }
}

TEST(OctetNorm, DelimitersAndEscapes) {
  struct Case {
    std::string_view text;
    std::string_view v;
    std::string_view m;
  };
  static constexpr Case kCases[] = {
      {"a\x1F"
       "b",
       "A ", "A "},
      {"a\x1F"
       "bc",
       "A C", "A C"},
      {"a\x1F", "A ", "A "},
      {"x\x1B(Byz", "X", "XBYZ"},
      {"x\x1Bgabcd\x1Bsyz", "XABG", "XABGYZ"},
      {"x\x1Bga\x1F"
       "byz",
       "XA", "XA YZ"},
      {"x\x1Bgcc", "XGG", "XGG"},
      {"x\x1Bg", "X", "X"},
      {"x\x1B", "X", "X"},
      {"x\x1Bga\x1B", "XA", "XA"},
      {"(a) - (b)", " A B ", " A B "},
      {"Dvo\xE9r\xE2"
       "ak",
       "DVORAK", "DVORAK"},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(Norm(c.text, 'V', false), c.v) << c.text;
    EXPECT_EQ(Norm(c.text, 'M', false), c.m) << c.text;
    EXPECT_EQ(Norm(c.text, 'O', false), c.m) << c.text;
    EXPECT_EQ(Norm(c.text, 'L'), "") << "no set of comparison forms";
  }
  EXPECT_EQ(Norm("(a) - (b)", 'M', true), "A B");
}

TEST(OctetNorm, AnyOctetsStayInBounds) {
  static constexpr std::string_view kOctets = "a g(\x1B\x1B\x1F\xA4\xA5\xC1";
  std::mt19937 random(650);
  for (int i = 0; i < 20'000; ++i) {
    std::vector<char> text(random() % 10);
    for (char& c : text) c = kOctets[random() % kOctets.size()];
    for (char set : {'V', 'M'}) {
      const std::string norm = Norm({text.data(), text.size()}, set);
      EXPECT_EQ(norm.find("  "), std::string::npos);
      EXPECT_FALSE(norm.starts_with(' ') || norm.ends_with(' '));
    }
  }
}

}  // namespace
}  // namespace cantorel
