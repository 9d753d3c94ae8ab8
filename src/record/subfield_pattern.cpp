#include "record/subfield_pattern.h"

#include <cstddef>

#include "charset/utf8.h"

namespace cantorel {

namespace {

bool Contains(std::string_view codes, char code) {
  return codes.find(code) != std::string_view::npos;
}

void AddOnce(char code, std::string& codes) {
  if (!Contains(codes, code)) codes += code;
}

class PatternParser {
 public:
  SubfieldPattern Parse(std::string_view pattern) {
    for (std::size_t i = 0; i < pattern.size(); ++i) {
      const char c = pattern[i];
      if (c == '{') {
        CloseGroup();
        OpenGroup(i + 1 < pattern.size() ? KindOf(pattern[i + 1]) : SubfieldRuleKind::kAsWritten);
        if (kind_ != SubfieldRuleKind::kAsWritten) ++i;
      } else if (c == '}') {
        CloseGroup();
      } else if (in_group_) {
        AddToGroup(c);
      } else {
        NoteUse(c);
        result_.rules.push_back({SubfieldRuleKind::kAsWritten, std::string(1, c)});
      }
    }
    CloseGroup();
    MarkLastGroups();
    return result_;
  }

 private:
  static SubfieldRuleKind KindOf(char mark) {
    switch (mark) {
      case '#':
        return SubfieldRuleKind::kAnyOrder;
      case '!':
        return SubfieldRuleKind::kLeaderFirst;
      case '^':
        return SubfieldRuleKind::kTrigger;
      case '@':
        return SubfieldRuleKind::kMarked;
      default:
        return SubfieldRuleKind::kAsWritten;
    }
  }

  void OpenGroup(SubfieldRuleKind kind) {
    in_group_ = true;
    kind_ = kind;
  }

  // A group without a code is no rule.
  void CloseGroup() {
    if (!codes_.empty()) result_.rules.push_back({kind_, codes_});
    codes_.clear();
    in_group_ = false;
  }

  void AddToGroup(char code) {
    if (codes_.empty()) NoteFirst(code);
    NoteUse(code);
    codes_ += code;
  }

  void NoteFirst(char code) {
    if (kind_ == SubfieldRuleKind::kLeaderFirst || kind_ == SubfieldRuleKind::kTrigger) {
      AddOnce(code, result_.trigger_codes);
    } else if (kind_ == SubfieldRuleKind::kMarked) {
      AddOnce(code, marked_codes_);
    }
  }

  void NoteUse(char code) {
    bool& used = used_[Octet(code)];
    if (used) AddOnce(code, result_.repeated_codes);
    used = true;
  }

  void MarkLastGroups() {
    for (const char code : marked_codes_) {
      for (std::size_t i = result_.rules.size(); i-- > 0;) {
        SubfieldRule& rule = result_.rules[i];
        if (rule.kind != SubfieldRuleKind::kMarked || !Contains(rule.codes, code)) continue;
        rule.kind = SubfieldRuleKind::kMarkedLast;
        break;
      }
    }
  }

  SubfieldPattern result_;
  std::string codes_;  // of the group under construction
  std::string marked_codes_;
  SubfieldRuleKind kind_ = SubfieldRuleKind::kAsWritten;
  bool in_group_ = false;
  bool used_[256] = {};
};

}  // namespace

SubfieldPattern ParseSubfieldPattern(std::string_view pattern) {
  return PatternParser().Parse(pattern);
}

}  // namespace cantorel
