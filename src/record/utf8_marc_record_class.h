// Utf8MarcRecordClass: one MARC 21 record.
//
// A record comes in as an ISO 2709 image (MarcRecordIn), is taken apart once
// into a table of fields and subfields, and from then on everything works on
// that table through a current field and a current subfield.  MarcRecordOut
// builds a new image whenever it is asked.
//
//   Utf8MarcRecordClass record;
//   record.MarcRecordIn(image);
//   for (record.FldMoveTop(); record.FldMoveNext(true);) {
//     std::cout << record.FldTag() << ' ' << record.FldText() << '\n';
//   }
//
// Conventions, for every member unless it says otherwise:
//   - text is octets, one a char; lengths and positions count octets;
//   - field text is delimiter (31), one-character code, text, repeated; the
//     text argument of a data field that does not begin with a delimiter is
//     taken as a subfield $a;
//   - a member that works on the current field or subfield gives an empty or
//     false answer when there is none, and changes nothing;
//   - row pointers count from 0 in order of arrival, -1 meaning none;
//   - bad input is refused in silence or answered as the member says.  Only
//     CharacterSetIn, CharacterSetOut, NormalizationScheme and the field shifts
//     throw (MarcClassError).
//
// One object holds one record and is used by one thread at a time.  Loading the
// next record into the same object reuses its memory.

#ifndef CANTOREL_RECORD_UTF8_MARC_RECORD_CLASS_H_
#define CANTOREL_RECORD_UTF8_MARC_RECORD_CLASS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "charset/marc8_writer.h"
#include "charset/octet_variant.h"
#include "charset/pending_marks.h"
#include "charset/utf8_char_class.h"
#include "record/field_orders.h"
#include "record/field_table.h"
#include "record/subfield_order_table.h"

namespace cantorel {

class Utf8MarcRecordClass {
 public:
  Utf8MarcRecordClass();
  ~Utf8MarcRecordClass();
  Utf8MarcRecordClass(const Utf8MarcRecordClass&) = delete;
  Utf8MarcRecordClass& operator=(const Utf8MarcRecordClass&) = delete;

  // --- Image (ISO 2709) ------------------------------------------------------

  // True when `image` has the frame of a MARC record; otherwise IsMarcErrorText
  // says what is missing.  Only the frame is judged: digits of the length, base
  // address, the three terminators.  A text longer than it claims passes.
  bool IsMarc(std::string_view image);
  std::string IsMarcErrorText() const { return is_marc_error_text_; }

  // Loads an image; the record held before is gone.  A leader that lost blanks
  // on the way is repaired.  An image that is no MARC record leaves the record
  // empty, and reading gives an empty text.
  void MarcRecordIn(std::string_view image);
  // The image last loaded, as repaired.
  std::string MarcRecordIn() const { return std::string(image_); }

  // Builds the image of the record as it stands; empty for a record without
  // fields.  A field above 9,999 octets or a record above 99,999 loses the high
  // digits of its numbers, as ISO 2709 has no room for them.
  std::string MarcRecordOut();
  // The same into a string that the caller reuses.
  void MarcRecordOut(std::string& image);

  // The 24 characters before the directory.  Writing takes positions 05 to 09
  // and 17 to 19 one at a time as ChangeLeaderValue does, then the whole; a
  // shorter value is ignored.
  std::string Leader() const { return leader_; }
  void Leader(std::string_view leader);
  // The directory as loaded, without its terminator.
  std::string Directory() const { return std::string(directory_); }

  // Begins a new record with leader, 005 and 008.  Type (leader/06) and level
  // (leader/07) are one character each.
  void NewRecord(std::string_view record_type, std::string_view bibliographic_level);

  // True when leader/06 of the loaded image was "z".
  bool IsAuthority() const { return is_authority_; }
  // The record changed since it was loaded, or its fields did not stand in the
  // order wanted when it was.
  bool MarcRecordModified() const { return modified_; }
  // Leader/09 as loaded.
  std::string CharacterEncodingScheme() const { return character_encoding_scheme_; }

  // --- Settings --------------------------------------------------------------

  // Folder of the file "MarcRecordClass.INI", which keeps the five booleans
  // behind; assigning reads it.
  std::string IniFilePath() const { return ini_file_path_; }
  void IniFilePath(std::string_view folder);
  // Each write goes into the file in IniFilePath.
  bool RemoveDuplicateOclcNumbers() const { return remove_duplicate_oclc_numbers_; }
  void RemoveDuplicateOclcNumbers(bool value);
  bool RemoveDuplicative035Fields() const { return remove_duplicative_035_fields_; }
  void RemoveDuplicative035Fields(bool value);
  bool RemoveOclcAlphabeticPrefix() const { return remove_oclc_alphabetic_prefix_; }
  void RemoveOclcAlphabeticPrefix(bool value);
  bool OclcNumbersHaveLeadingZeroes() const { return oclc_numbers_have_leading_zeroes_; }
  void OclcNumbersHaveLeadingZeroes(bool value);
  bool RdaReCast502Fields() const { return rda_recast_502_fields_; }
  void RdaReCast502Fields(bool value);

  // Indicators other than a digit or a blank become a blank in FldAdd.
  bool ForceInvalidIndicatorValues() const { return force_invalid_indicator_values_; }
  void ForceInvalidIndicatorValues(bool value) { force_invalid_indicator_values_ = value; }
  // A rebuilt field keeps its numeric subfields that the new text lacks.
  bool PreserveLeadingNumericSubfields() const { return preserve_leading_numeric_subfields_; }
  void PreserveLeadingNumericSubfields(bool value) { preserve_leading_numeric_subfields_ = value; }
  // The halves of marks over two letters, which MARC-8 has, become one mark.
  bool UseDoubleWidthDiacritics() const { return use_double_width_diacritics_; }
  void UseDoubleWidthDiacritics(bool value) { use_double_width_diacritics_ = value; }
  bool ReferringToVoyagerIsOK() const { return referring_to_voyager_is_ok_; }
  void ReferringToVoyagerIsOK(bool value) { referring_to_voyager_is_ok_ = value; }
  // Institution codes, blank-separated, whose authority records count as national.
  std::string NationalAuthorityInstitutions() const { return national_authority_institutions_; }
  void NationalAuthorityInstitutions(std::string_view codes) {
    national_authority_institutions_ = codes;
  }
  // The institution's code for its local $5; repeated blanks are taken out.
  std::string Nuc() const { return nuc_; }
  void Nuc(std::string_view code);

  // --- MARC control characters, one octet each -------------------------------

  std::string MarcDelimiter() const { return "\x1F"; }
  std::string MarcEndOfField() const { return "\x1E"; }
  std::string MarcEndOfRecord() const { return "\x1D"; }
  std::string MarcFill() const { return "|"; }
  std::string MarcEscape() const { return "\x1B"; }

  // --- Field cursor ----------------------------------------------------------
  //
  // FldMoveTop then FldMoveNext(true) until it answers false walks the fields.
  // Past an end the cursor is -1 and stays there.

  bool FldMoveFirst(bool skip_deleted);
  bool FldMoveLast(bool skip_deleted);
  bool FldMoveNext(bool skip_deleted);
  bool FldMovePrev(bool skip_deleted);
  // Stands on the first (last) live field, which the next FldMoveNext
  // (FldMovePrev) delivers again; true when the record has a live field.
  bool FldMoveTop();
  bool FldMoveBottom();

  // Searches by a list of tag patterns (blank-separated, "X" standing for any
  // digit) and, when `text` is not empty, by the beginning of the field's
  // comparison form.  An empty argument repeats that of the search before.
  bool FldFindFirst(std::string_view tag_list, std::string_view text);
  bool FldFindNext(std::string_view tag_list = {}, std::string_view text = {});
  bool FldFindLast(std::string_view tag_list, std::string_view text);
  bool FldFindPrev(std::string_view tag_list = {}, std::string_view text = {});

  // The same searches without moving the cursor or forgetting the search.
  bool FldTestFirst(std::string_view tag_list);
  bool FldTestNext(std::string_view tag_list);
  bool FldTestPrev(std::string_view tag_list);
  bool FldTestLast(std::string_view tag_list);

  // True when a pattern of `tag_list` agrees with `tag` as far as the pattern
  // goes.  Case counts.  The third argument is not looked at.
  static bool TagCompare(std::string_view tag_list, std::string_view tag,
                         std::string_view ignored = {});

  std::int16_t FldPointer() const { return current_field_; }
  void FldPointer(std::int16_t row);
  bool FldWasFound() const { return field_found_; }
  bool FldAtTop() const { return field_at_top_; }
  bool FldAtBottom() const { return field_at_bottom_; }
  std::string FldNextTag() const;
  std::string FldPrevTag() const;
  // Rows of the table, deleted ones included.
  std::int16_t FieldCount() const { return table_.Count(); }

  // --- Current field ---------------------------------------------------------

  std::string FldTag() const { return std::string(FldTagView()); }
  void FldTag(std::string_view tag);
  // Two characters; empty for a control field.
  std::string FldInd() const;
  void FldInd(std::string_view indicators);
  std::string FldInd1() const;
  void FldInd1(std::string_view indicator);
  std::string FldInd2() const;
  void FldInd2(std::string_view indicator);
  // Field text without indicators.  Writing an empty text deletes every
  // subfield and keeps the row.
  std::string FldText() const;
  void FldText(std::string_view text);
  // FldText appended to `out`, for loops.
  void AppendFldText(std::string& out) const;
  std::string_view FldTagView() const;
  std::string_view FldIndView() const;
  // The tag, or for an 880 with $6 the tag that it stands for.
  std::string FldTagTrue() const;
  // The 12 directory characters the field was loaded from; empty if added later.
  std::string FldDirectory() const;
  bool FldDeleted() const;
  bool FldIsControl() const;
  bool FldChanged() const;
  void FldChanged(bool value);
  bool FldBoolean1() const;
  void FldBoolean1(bool value);
  bool FldBoolean2() const;
  void FldBoolean2(bool value);
  void FldLoadInfo(std::string& tag, std::string& indicators, std::string& text) const;
  void FldGetInfo(std::string& tag, std::string& indicators, std::string& text) const;

  // --- Field editing ---------------------------------------------------------

  // Adds a field at its ordered place; the cursor stands on the new row.  A tag
  // that is not three digits is refused; a second 008 replaces the content of
  // the first; a full table (32,767 rows) takes no more.
  void FldAdd(std::string_view tag, std::string_view indicators, std::string_view text,
              bool at_top = false);
  // FldAdd; the fourth argument is not looked at.
  void FldAddGeneric(std::string_view tag, std::string_view indicators, std::string_view text,
                     std::string_view ignored);
  // Add next to the current field if that keeps the field order, else FldAdd.
  // Indicators that are neither empty nor two digits or blanks end the call.
  void FldInsertAfter(std::string_view tag, std::string_view indicators, std::string_view text);
  void FldInsertBefore(std::string_view tag, std::string_view indicators, std::string_view text);
  // Rebuild the current field.  A field whose place changes comes back under
  // another FldPointer, its old row staying behind as deleted.
  void FldChange(std::string_view tag, std::string_view indicators, std::string_view text);
  void FldReset(std::string_view tag, std::string_view indicators, std::string_view text);
  void FldDelete();
  // Does nothing: a deleted field stays deleted.
  void FldUndelete() {}
  // Exchange with the neighbour when their order keys allow it.  Throws
  // MarcClassError (9) before anything changes when there is no field beyond
  // the pair to be linked.
  void FldShiftUp();
  void FldShiftDown();
  void FldChangedClearAll();
  // Splits the text of a $6 into the linked tag, the occurrence number (at
  // least two digits) and the rest, which begins with "/".
  static void IdentifySubfield6Pieces(std::string_view subfield6, std::string& tag,
                                      std::string& occurrence, std::string& rest);
  // Adds a general material designation to the current field.
  void FldInsertSubfieldH(std::string_view text);

  // --- Subfield cursor -------------------------------------------------------

  bool SfdMoveFirst(bool skip_deleted);
  bool SfdMoveLast(bool skip_deleted);
  bool SfdMoveNext(bool skip_deleted);
  bool SfdMovePrev(bool skip_deleted);
  bool SfdMoveTop();
  bool SfdMoveBottom();
  // Searches by a list of codes and, when `text` is not empty, by the beginning
  // of the subfield's comparison form.
  bool SfdFindFirst(std::string_view codes, std::string_view text);
  bool SfdFindNext(std::string_view codes = {}, std::string_view text = {});
  bool SfdFindLast(std::string_view codes, std::string_view text);
  bool Sfdfindprev(std::string_view codes = {}, std::string_view text = {});
  bool SfdTestFirst(std::string_view codes);
  bool SfdTestNext(std::string_view codes);
  bool SfdTestPrev(std::string_view codes);

  std::int16_t SfdPointer() const { return current_subfield_; }
  void SfdPointer(std::int16_t row);
  bool SfdWasFound() const { return subfield_found_; }
  bool SfdAtTop() const { return subfield_at_top_; }
  bool SfdAtBottom() const { return subfield_at_bottom_; }

  // --- Current subfield ------------------------------------------------------

  std::string SfdCode() const { return std::string(SfdCodeView()); }
  void SfdCode(std::string_view code);
  std::string SfdText() const { return std::string(SfdTextView()); }
  void SfdText(std::string_view text);
  std::string_view SfdCodeView() const;
  std::string_view SfdTextView() const;
  // True also when there is no current subfield.
  bool SfdDeleted() const;
  bool SfdBoolean1() const;
  void SfdBoolean1(bool value);
  bool Sfdboolean2() const;
  void Sfdboolean2(bool value);

  // --- Subfield editing ------------------------------------------------------

  // Appends a subfield, then lets the subfield order move it.
  void SfdAdd(std::string_view code, std::string_view text);
  void SfdInsertBefore(std::string_view code, std::string_view text);
  void SfdInsertAfter(std::string_view code, std::string_view text);
  void SfdChange(std::string_view code, std::string_view text);
  // With `care`, deleting the $h of a 245 or 8XX gives its closing punctuation
  // to the subfield before it.
  void SfdDelete(bool care = false);
  // Marks the subfield deleted, as SfdDelete without care: a deleted subfield
  // cannot be brought back.
  void SfdUndelete();
  void SfdShiftLeft();
  void SfdShiftRight();
  // Delimiter, code, text; empty for an empty code or text.  A longer code is
  // cut to one character, in the argument too.
  static std::string SfdMake(std::string& code, const std::string& text);
  // Delimiter and the first character of the code.
  static std::string SfdDelim(std::string_view code);

  // Text after a code from `start` (from 1) on, trimmed, up to the next
  // delimiter; the result is the position behind the hit, 0 for none.
  static std::int32_t ExtractSubfield(std::string_view field_text, std::string_view code,
                                      std::string& text, std::int32_t start);
  // The current field's text limited to `wanted` codes (empty: all) less `refused`.
  std::string FldTextWithOnlyCertainSubfields(std::string_view wanted,
                                              std::string_view refused) const;

  // --- Fixed fields (positions from 0) ---------------------------------------

  // Empty for a stretch that reaches past the leader.
  std::string GetLeaderValue(std::int16_t position, std::int16_t length) const;
  // A change of position 06 must stay in one kind of record; a change of
  // position 09 switches CharacterSetOut.
  void ChangeLeaderValue(std::int16_t position, std::string_view value);
  std::string Get008Value(std::int16_t position, std::int16_t length) const;
  void Change008Value(std::int16_t position, std::string_view value);
  // For a current 006, 007 or 008.
  std::string GetFixedField(std::int16_t position, std::int16_t length) const;
  void ChangeFixedField(std::int16_t position, std::int16_t length, std::string_view value);
  // Format code of a leader, of a lone leader/06, or (empty) of the record.
  std::string SetFormatCode(std::string_view leader);
  bool SerialBibliographicRecord(std::string_view leader = {}) const;
  // The 008 of a new record: `date` (6 digits) and the template of the format.
  static std::string Default008(std::string_view format_code, std::string_view date);
  // "A" authority, "H" holdings, "B", "D", "F", "M", "P", "S", "U" bibliographic.
  std::string MarcRecordFormat() const { return std::string(1, format_code_); }
  // Length of the 008 in the image loaded, 0 without one.
  std::int16_t Fld008Length() const { return fld008_length_; }

  // --- Order -----------------------------------------------------------------

  //
  // Each family of formats has a table of field order and one of subfield order:
  // authority ("A"), bibliographic ("B", "D", "F", "M", "P", "S", "U"), holdings
  // ("H"), and one for all other codes.  A new object orders no fields; subfields
  // stand by the defaults.  A table that is empty when a record of its family is
  // loaded gets its defaults (NewRecord asks for those of the fields alone).
  // Except for ClearSfdOrder, nothing here has an effect while a record is held:
  // load an empty text first.

  // Empties the table of field order of a family and turns pairing off, which is
  // shared by "H" and the other codes and turned off by "H" alone.
  void ClearFldOrder(std::string_view format_code);
  // Adds a range of tags.  A field stands in the first range that holds its tag.
  // Inside a range `kind` orders: 1 names ahead of name-titles, 2 the hundreds of
  // the tag, 3 the second indicator and the thesaurus in $2, 4 the own $5 first
  // (see Nuc), 5 relationship and heading of a reference, 6 the tag, 7 the $8,
  // 11 the first indicator, 12 $3 and tag, 13 the $c.  9 is no order.  8 turns
  // the pairing of 880 fields on, 10 after the practice of LC; for "880" alone
  // they add no range, and for another range they count as 2, as does any other
  // number.
  void SetFldOrder(std::string_view format_code, std::string_view low_tag,
                   std::string_view high_tag, std::int16_t kind);
  // Replace the order of a family by its default.
  void SetDefaultFldOrderAuth();
  void SetDefaultFldOrderBib();
  void SetDefaultFldOrderHold();
  // A line for each range of "A", "B" or "H", ended by CR LF: "400-499 in
  // reference order".  Empty for any other code.
  std::string SummarizeFieldOrderInstructions(std::string_view format_code) const;
  // What a 653 without second indicator sorts by among the subject headings;
  // empty: ahead of them.
  std::string SortingIndicatorFor653Field() const { return sorting_indicator_for_653_; }
  void SortingIndicatorFor653Field(std::string_view value) { sorting_indicator_for_653_ = value; }

  // Sets the order of the subfields of a tag ("XXX": of every tag without an own
  // one) by a pattern; the language is told in record/subfield_pattern.h.
  void SetSfdOrder(std::string_view format_code, std::string_view tag, std::string_view pattern);
  void ClearSfdOrder(std::string_view format_code);
  // Rows of the bibliographic table, whatever the format.
  std::int16_t SfdMax() const;

  // Folder of the order files "bibsup.cfg", "holdsup.cfg" and "authsup.cfg"; ends
  // in a backslash.  Assigning another folder reads them (record/order_file.h).
  // Without its file a family orders its fields by the hundreds of their tags
  // and its subfields by the defaults.  An empty value is ignored.
  std::string FldOrderFolder() const { return field_order_folder_; }
  void FldOrderFolder(std::string_view folder);
  // By what a field would be ordered among those of the record held, its pairing
  // with an 880 apart: fields of smaller keys stand before it.  The tag is three
  // digits.  Valid until the next record is loaded.
  std::string_view FldOrderKey(std::string_view tag, std::string_view indicators,
                               std::string_view text);
  // When true, what is read of the subfield orders is told in a new text file in
  // DebugFilePath (which ends in its separator), or without one in the user's
  // "My Documents".
  bool DebugOn() const { return debug_on_; }
  void DebugOn(bool value) { debug_on_ = value; }
  std::string DebugFilePath() const { return debug_file_path_; }
  void DebugFilePath(std::string_view folder) { debug_file_path_ = folder; }

  // When false, a misplaced field (subfield) is reported and not moved.
  bool TestFieldOrder() const { return test_field_order_; }
  void TestFieldOrder(bool value) { test_field_order_ = value; }
  bool TestSubfieldOrder() const { return test_subfield_order_; }
  void TestSubfieldOrder(bool value) { test_subfield_order_ = value; }
  // When true, neither fields nor subfields are moved.
  bool MakeNoChange() const { return make_no_change_; }
  void MakeNoChange(bool value) { make_no_change_ = value; }
  // When true, subfields stay in the order added and none is reported.
  bool IgnoreSfdOrder() const { return ignore_subfield_order_; }
  void IgnoreSfdOrder(bool value) { ignore_subfield_order_ = value; }
  bool FldsOutOfOrder() const { return fields_out_of_order_; }
  bool SubfieldsOutOfOrder() const { return subfields_out_of_order_; }
  bool FldOrderChanged() const { return field_order_changed_; }
  bool SfdOrderChanged() const { return subfield_order_changed_; }
  // Tags, blank-separated, in which a subfield stood or stands out of order.
  std::string FldsWithSfdsOutOfOrder() const { return fields_with_subfields_out_of_order_; }

  // --- Record tests ----------------------------------------------------------
  //
  // Each answers true when it found a fault; `message` then holds a line a
  // fault, joined by CR LF, and is empty otherwise.  No cursor moves.

  // Live subfields without text: "500 has empty subfield $a".
  bool TestRecordForEmptySubfields(std::string& message) const;
  // Headings and titles of the image loaded that begin with another subfield
  // than $a, or than the one that an authority's subdivision begins with: "245
  // began with unexpected subfield $b".  Control subfields may stand ahead of
  // it.  False without an image, and for holdings.
  bool TestRecordForLeadingSubfield(std::string& message) const;
  // Data fields of the image loaded with a delimiter before a blank, before
  // another delimiter or at the end: "650 has 'blank' subfield", once a field.
  bool TestRecordForBlankSubfieldCodes(std::string& message) const;
  // Tag patterns, blank-separated, of the fields to be tested for empty
  // subfields in authority, bibliographic and holdings records; fewer than three
  // characters mean every data field.
  std::string FieldsToTestForEmptySubfieldsAuth() const { return empty_test_auth_; }
  void FieldsToTestForEmptySubfieldsAuth(std::string_view tags) { empty_test_auth_ = tags; }
  std::string FieldsToTestForEmptySubfieldsBib() const { return empty_test_bib_; }
  void FieldsToTestForEmptySubfieldsBib(std::string_view tags) { empty_test_bib_ = tags; }
  std::string FieldsToTestForEmptySubfieldsHold() const { return empty_test_hold_; }
  void FieldsToTestForEmptySubfieldsHold(std::string_view tags) { empty_test_hold_ = tags; }

  // --- Questions to authority records ----------------------------------------

  // True for an authority record with a 010, with a 035 $a of one of
  // NationalAuthorityInstitutions or of a national prefix ("n ", "sh" ...), or
  // with a 040 $a "DNLM".  `reason` is "010: " and the field, "035: " and the
  // number, or empty.
  bool NationalAuthorityRecord(std::string& reason);
  // 040 $e "rda"; an authority record must also have 008/10 "z".
  bool RdaRecord();
  // For a current 4XX or 5XX of an authority record: its $w says that the
  // heading is a former one (third character), that the reference is not to be
  // shown (fourth); "n" and nothing at all say no.
  bool FldIsFormerHeading() const;
  bool FldIsSuppressedReference() const;
  // FldIsFormerHeading for a field that is not in the record.
  bool FldFormerHeading(std::string_view tag, std::string_view text) const;

  // Series practice of a series authority record (MARC 21 authority 642 to 646),
  // by the institution in $5: Dlc the Library of Congress ("DLC"), Dpcc the
  // cooperative programme ("DPCC"), Local the institution of Nuc().  The answer
  // is the $a of the first field of that institution, empty without one and in
  // any other record.
  // 642: a numbering as it is to be written, such as "v. 1".
  std::string SeriesNumberingPatternDlc() const;
  std::string SeriesNumberingPatternDpcc() const;
  std::string SeriesNumberingPatternLocal() const;
  // 644: "f" analysed in full, "p" in part, "n" not analysed.
  std::string SeriesAnalysisPolicyDlc() const;
  std::string SeriesAnalysisPolicyDpcc() const;
  std::string SeriesAnalysisPolicyLocal() const;
  // 645: "t" traced as here, "n" not traced.
  std::string SeriesTracingPolicyDlc() const;
  std::string SeriesTracingPolicyDpcc() const;
  std::string SeriesTracingPolicyLocal() const;
  // 646: "s" classed separately, "c" as a collection, "m" with the main series.
  std::string SeriesClassificationPolicyDlc() const;
  std::string SeriesClassificationPolicyDpcc() const;
  std::string SeriesClassificationPolicyLocal() const;

  // Takes the text of an unstructured 502 apart (record/thesis_note.h); `date`
  // is 008/07-10.  False, and four empty parts, for a text that is not one of
  // the usual forms or that has subfields other than $a.
  static bool ParseThesisNote(std::string_view text, std::string_view date, std::string& degree,
                              std::string& miscellaneous, std::string& institution,
                              std::string& year);

  // --- Places ----------------------------------------------------------------

  // The usual abbreviation of a state, province or country: "Mass.".  A name that
  // has none comes back as it is.
  std::string AbbreviatePlaceName(std::string_view place) const;
  // The name that an abbreviation stands for, with or without its blanks: "N.S.W."
  // gives "New South Wales".  `qualifier` is the country of a state or province,
  // otherwise empty.  Both are empty for an abbreviation that is not listed.
  void ExpandPlaceAbbreviation(std::string_view abbreviation, std::string& name,
                               std::string& qualifier) const;
  // The place of a field text, or of a text without delimiters, as geographic
  // subdivisions: "Boston (Mass.)" gives a $z "Massachusetts" and a $z "Boston".
  // A place whose qualifier is not listed is one $z; a text whose qualifier is a
  // kind of jurisdiction comes back as it is.
  std::string IndirectSubdivisionForm(std::string_view text) const;
  // Whether a qualifier in comparison form is a kind of jurisdiction ("DUCHY").
  static bool IndirectSubdivisionFormIsJurisdiction(std::string_view word);

  // --- Standard numbers (see normalize/) -------------------------------------

  // The form by which the numbers of 010, 020, 022 and 035 are compared; the
  // text of any other tag comes back trimmed.
  std::string NormalizeStandardNumber(std::string_view tag, std::string_view text) const;
  // True when the check digit of an ISBN (10 or 13), ISSN or ISMN is right.
  // Hyphens are not looked at.
  static bool CheckISXN(std::string_view text);
  // Without hyphens; text behind the number, such as " (pbk.)", comes along.
  // Empty for a number that has no such form.
  static std::string ConvertISBN13To10(std::string_view text);
  static std::string ConvertISBN10To13(std::string_view text);

  // --- Safe strings ----------------------------------------------------------
  //
  // None of these can fail.  Those marked (c) count characters when the record
  // holds UTF-8 and octets otherwise; the others always count octets.
  // Positions count from 1.

  std::int32_t SafeLen(std::string_view text) const;             // (c)
  std::int32_t LengthInCharacters(std::string_view text) const;  // (c)
  // (c) `length` -1 is to the end.  With `start_counts_characters` false the
  // start is an octet position even in UTF-8.
  std::string SafeMid(std::string_view text, std::int32_t start, std::int32_t length = -1,
                      bool start_counts_characters = true) const;
  std::string SafeRight(std::string_view text, std::int32_t length) const;  // (c)
  static std::string SafeStuff(std::string_view text, std::int32_t position, std::int32_t length,
                               std::string_view insertion);
  // Position of the last occurrence, 0 for none.
  static std::int32_t Rat(std::string_view text, std::string_view sought);
  // With mode 1 `sought` is a list of characters.
  static std::int32_t RatExtended(std::string_view text, std::string_view sought,
                                  std::int32_t mode = 0);
  // Replaces from the end to the start, stepping back one position at a time.
  static std::string ReplaceCharacters(std::string_view text, std::string_view sought,
                                       std::string_view replacement, bool squeeze = false);
  static std::string RemoveRepeatedCharacters(std::string_view text, std::string_view sought);
  static std::string RemoveSpaces(std::string_view text);
  static std::string AddSpacesAroundDelimiters(std::string_view text);
  static std::string RemoveSpacesAroundDelimiters(std::string_view text);
  // A delimiter and the subfield code behind it are left alone.
  std::string SafeUCase(std::string_view text) const;
  std::string SafeLCase(std::string_view text) const;
  std::string UCaseFirstWord(std::string_view text, bool skip_subfield6 = false) const;
  std::string LCaseFirstWord(std::string_view text) const;
  // `leave_alone` lists words in comparison form, each between asterisks.
  std::string SafeTitleCase(std::string_view text, std::string_view leave_alone) const;
  std::string SafeSentenceCase(std::string_view text) const;
  // (c) Position of the first difference; 0 if one text begins the other.
  std::int32_t CLCL(std::string_view a, std::string_view b) const;
  static std::string LeftPad(std::string_view text, std::int32_t width, std::string_view pad);
  static std::string LeftPadNumber(std::int32_t number, std::int32_t width, std::string_view pad);
  // TRUE, YES, Y, T, 1 and -1, in any case.
  bool IsTrue(std::string_view text) const;

  // --- Comparison forms (see normalize/) -------------------------------------

  // "P" (NACO) or "V" (plain).  Throws MarcClassError (380) for another letter,
  // which stays stored all the same.
  std::string NormalizationScheme() const {
    return std::string(normalization_scheme_ == '\0' ? 0 : 1, normalization_scheme_);
  }
  void NormalizationScheme(std::string_view scheme);
  // Upper case, no diacritics, most punctuation as blanks, runs of blanks
  // reduced.  `scheme` is accepted and not looked at.
  std::string NormString(std::string_view text, bool trim, std::string_view scheme) const;
  // The same appended to `out`, for loops.
  void AppendNormString(std::string_view text, bool trim, std::string& out) const;
  // The form for NACO comparison, in which the commas of a $a and the hyphen of
  // an open date may survive.
  std::string NormStringNaco(std::string_view text, bool trim, std::string_view scheme,
                             std::string_view format, std::string_view tag,
                             std::string_view code) const;
  std::string NormalizeWholeField(std::string_view scheme, std::string_view format,
                                  std::string_view tag, std::string_view indicators,
                                  std::string_view text, std::string& cleaned);
  static std::string ListSubfieldsForNormalization(std::string_view format, std::string_view tag);
  std::string GenerateNacoFormFromRaw(std::string_view tag, std::string_view text) const;
  std::string FldNorm();
  std::string FldNormNaco();
  std::string FldNormNacoAlmost();
  std::string SfdNorm() { return std::string(SfdNormView()); }
  std::string SfdNormNaco() { return std::string(SfdNormNacoView()); }
  // Valid until the record changes or the next record is loaded.
  std::string_view SfdNormView();
  std::string_view SfdNormNacoView();
  std::string FldTextNormalizable() const;
  void FldLoadInfoNormalizable(std::string& tag, std::string& indicators, std::string& text) const;
  std::string RemoveDiacritics(std::string_view text) const;
  std::string RemoveNonfilingCharacters(std::string_view format, std::string_view tag,
                                        std::string& indicators, std::string_view text,
                                        bool capitalise) const;
  void RemoveNonfilingZone(std::string& text, bool& found) const;

  // --- Character sets (see charset/) -----------------------------------------

  // "U" UTF-8, "M" MARC-8, "O" and "V" two 8-bit variants, "L" Windows text.
  // Throw MarcClassError (380) for any other letter.  Setting the output set
  // translates the record held: its fields, the 066 that names the sets used, and
  // leader/09.  "ULC" is "U" with the directions of right-to-left fields marked.
  std::string CharacterSetIn() const;
  void CharacterSetIn(std::string_view letter);
  std::string CharacterSetOut() const { return std::string(1, character_set_out_); }
  void CharacterSetOut(std::string_view letter);
  // The letter that fits the octets of an image (empty: of the record held),
  // and the illegal octets found.
  std::string CharacterizeCharacterSet(std::string_view image) const;
  bool MarcRecordTranslated() const { return record_translated_; }
  bool DisableUtf8Decomposition() const { return disable_utf8_decomposition_; }
  void DisableUtf8Decomposition(bool value) { disable_utf8_decomposition_ = value; }
  bool CharactersDecomposed() const { return characters_decomposed_; }
  // UTF-8 text with its precomposed letters taken apart and its punctuation made
  // plain (charset/decomposition.h); runs of blanks become one if `changed`.
  std::string DecomposeUnicodeCharactersInString(std::string_view text, bool& changed) const;
  // `pair` "L2M": Windows text as MARC-8.  Any other: one UTF-8 character as its
  // plain form in UTF-8, or itself (charset/windows_text.h).
  static std::string MsoftAscii2Marc(std::string_view text, std::string_view pair);
  // True when every character of UTF-8 text is Latin or East Asian in MARC-8.
  static bool Utf8TextContainsOnlyMarc8Characters(std::string_view text);
  // UTF-8 text with the halves of marks over two letters joined if
  // UseDoubleWidthDiacritics is set (charset/double_marks.h).
  std::string AdjustDoubleHalfDiacritics(std::string_view text) const;

  // The steps of a translation, one field at a time.  `changed`: the text or the
  // indicators are other than before.

  // From the set CharacterSetIn to UTF-8 (charset/marc8_reader.h).  `format` is
  // as MarcRecordFormat gives it.  A count of nonfiling characters that includes
  // marks of the letter behind them is corrected in `indicators`.  `error`: some
  // octets are no characters and stand as "[MARC+" digits "]".
  void TranslateMarc2Utf8OneField(std::string_view format, std::string_view tag,
                                  std::string& indicators, std::string& text, bool& changed,
                                  bool& error);
  // A part of a field that is in one pair of sets, by codes such as "s", "(N".
  void TranslateMarc2Utf8Text(std::string_view g0, std::string_view g1, std::string_view tag,
                              std::string& text, bool& changed, bool& error);
  // Takes the escape sequence at `position` (from 1) off: `code` is the code it
  // designates, `text` what stands behind it.  Both stay if there is none.
  static void TranslateMarc2Utf8OneFieldFindBreakAdjustCode(std::string& code,
                                                            std::int32_t position,
                                                            std::string& text);
  // Numeric notation to characters (charset/numeric_notation.h).
  static void TranslateMarc2Utf8HexNotation(std::string& text);
  // The text of a right-to-left 880 with its directions marked
  // (charset/right_to_left.h); any other comes back.
  static std::string TranslateMarc2Utf8OneFieldLcPattern(std::string_view tag,
                                                         std::string_view text);
  // Octets of pairs of upper-case hexadecimal digits.
  static std::string Hex2CharString(std::string_view text);
  // From UTF-8 to "M", "O" or "V" (charset/marc8_writer.h).  The indicators stay,
  // and there is no error: what the set lacks becomes numeric notation.
  void TranslateUtf82MarcOneField(std::string_view tag, std::string& indicators, std::string& text,
                                  bool& changed, bool& error, std::string_view set_out);
  // Does nothing.
  void TranslateUtf8Text2Marc() const {}
  // Between the 8-bit variants: chooses the table of a pair of sets, by number
  // (charset/octet_variant.h), and applies it to a text in Latin.
  void SetUpTranslation(std::int32_t pair);
  std::string Translate880FieldTranslateThePiece(std::string_view piece) const;

  // The record's character object, for questions about one character.
  Utf8CharClass& CharClass() { return char_class_; }

  bool CharIsAlpha(std::string_view character) const;
  std::string CharCategory(std::string_view character) const;
  static bool ContainsRightToLeftCharacters(std::string_view text);
  // Letters of the scripts found (charset/script_ranges.h); empty for Latin text.
  static std::string VernacularDataCharacterize(std::string_view text);
  // The same for the current field, by its escape sequences when it is MARC-8.
  std::string FldCharacterizeVernacularData() const;
  // Writing in another script than Latin, in the current field or subfield, or
  // in any field: also in scripts that have no letter above.
  bool FldContainsVernacularData() const;
  bool SfdContainsVernacularData() const;
  bool VernacularDataPresent() const;

  // --- MARCXML (see display/) -------------------------------------------------

  // Replaces the record by the first one in `marcxml` (MARC 21 XML schema,
  // "marc:", "marcxml:" or nothing ahead of the names): a new record of the
  // leader's type and level, with positions 17 to 19 as far as the format has
  // them, control fields ahead of data fields.  Damaged text gives what could be
  // read; without a leader the record is empty.
  void XmlRecordIn(std::string_view marcxml);
  // The record as a MARCXML collection of one, in UTF-8 whatever its character
  // set, always well-formed (display/marcxml_writer.h); lines end in CR LF.
  // Mode 0 is MARCXML.  No other mode has a form: the text is empty.
  std::string XMLRecordOut(std::int16_t mode);

  // "<" "&" ">" and the two quotation marks become the escapes of XML.
  static std::string XmlConditionText(std::string_view text);
  // Undoes the five XML escapes and the character references of HTML
  // (display/xml_references.h); a no-break space becomes a blank.  The flag is
  // not looked at.
  std::string XmlUnconditionText(std::string_view text, bool flag = true) const;
  // "<element>content</name>"; the name is the first word of the element.
  static std::string XmlTags(std::string_view element, std::string_view content);
  // The text between double quotation marks.
  static std::string AddQuotes(std::string_view text);

 private:
  struct OrderKey {
    std::string_view key;
    std::string_view link;
  };
  // What a key is made of: the tag and indicators that it sorts under.
  struct SortedField {
    std::string_view tag;
    char indicators[2];
    std::string_view text;
  };

  bool HasField() const { return current_field_ >= 0; }
  bool HasSubfield() const { return HasField() && current_subfield_ >= 0; }
  FieldRecord& CurrentField() { return table_.Field(current_field_); }
  const FieldRecord& CurrentField() const { return table_.Field(current_field_); }
  SubfieldRecord& CurrentSubfield() { return table_.Subfield(CurrentField(), current_subfield_); }
  const SubfieldRecord& CurrentSubfield() const {
    return table_.Subfield(CurrentField(), current_subfield_);
  }
  bool Utf8() const { return character_set_out_ == 'U'; }

  // Image (record_image_io.cpp).
  void Empty();
  char DecideCharacterSet() const;
  void LoadInCharacterSet(char set);
  void LoadFields();
  bool LoadField(std::string_view tag, std::string_view text, std::string_view& text_of_001);
  void BeforeRecordOut();
  void RecastThesisNote();
  std::size_t BodyLength(const FieldRecord& field) const;
  void WriteFields(char* directory, char* data);
  char* WriteText(const FieldRecord& field, char* place) const;
  void AppendText(const FieldRecord& field, std::string& out) const;

  // Settings (record_settings.cpp).
  void ReadBooleanSettings();
  void WriteBooleanSetting(std::string_view key, bool value) const;

  // Field editing (field_editing.cpp).  The text of AddField must stay valid
  // while the record is held: a view of the image or of the arena.
  bool AddField(std::string_view tag, std::string_view indicators, std::string_view text,
                bool at_top);
  std::int16_t AppendFieldRow(std::string_view tag, std::string_view indicators,
                              const OrderKey& key);
  static void SetTagAndIndicators(FieldRecord& field, std::string_view tag,
                                  std::string_view indicators);
  std::string_view ControlFieldText(std::string_view tag, std::string_view text, bool size_008);
  std::string_view DataFieldText(std::string_view text);
  void ParseFieldText(std::int16_t row, std::string_view text);
  void ParseSubfields(FieldRecord& field, std::string_view text);
  bool HasLive008() const;
  void FindDelimiters(std::string_view text);
  bool Is880InDisguise(std::string_view tag, std::string_view text) const;
  static void MarkChanged(FieldRecord& field) {
    field.changed = true;
    field.whole_text = {};
  }
  void RebuildField(std::string_view tag, std::string_view indicators, std::string_view text);
  std::string_view WithKeptNumericSubfields(std::string_view text);
  bool MayStay(const FieldRecord& field, const OrderKey& key, bool has_subfield6) const;
  void SetIndicator(std::size_t position, std::string_view indicator);
  void InsertBeside(std::string_view tag, std::string_view indicators, std::string_view text,
                    bool after);
  bool FitsBeside(std::int16_t row, std::string_view key, bool after) const;
  std::int16_t RowAheadOfSubfieldH() const;
  bool HasLiveSubfield(std::string_view codes) const;

  // The chain of fields (field_placing.cpp).
  void LinkLast(std::int16_t row);
  void LinkAfter(std::int16_t row, std::int16_t prev);
  void LinkBefore(std::int16_t row, std::int16_t next);
  void Unlink(std::int16_t row);
  void PlaceField(std::int16_t row, bool at_top);
  void PlaceByKey(std::int16_t row, bool at_top);
  void PlacePaired880(std::int16_t row);
  void PlaceByLink(std::int16_t row);
  std::int16_t FirstOfKey(std::int16_t row) const;
  bool MayMove();
  void ReportMisplaced();
  void MoveBefore(std::int16_t row, std::int16_t next);
  void MoveAfter(std::int16_t row, std::int16_t prev);
  void ExchangeWithPrevious(std::int16_t row);

  // Subfield editing (subfield_editing.cpp).  Texts as for AddField.
  void AddSubfield(FieldRecord& field, char code, std::string_view text);
  void AddParsedSubfield(FieldRecord& field, char code, std::string_view text);
  void SettleSubfield(const FieldRecord& field, char& code, std::string_view& text);
  void AddControlText(FieldRecord& field, std::string_view text);
  void AddFirstSubfield(FieldRecord& field, char code, std::string_view text);
  void InsertSubfield(FieldRecord& field, char code, std::string_view text, bool after);
  void InsertBesideSubfield(std::string_view code, std::string_view text, bool after);
  std::int16_t AppendSubfieldRow(FieldRecord& field, char code, std::string_view text,
                                 NormOrigin origin);
  void LinkSubfields(FieldRecord& field, std::int16_t left, std::int16_t right);
  void ExchangeSubfields(std::int16_t left, std::int16_t right);
  bool StepSubfield(SubfieldMove direction);
  void ShiftSubfield(SubfieldMove direction, bool after_title);
  void WalkIntoPlace(bool after_title);
  void ReportSubfieldOutOfOrder();
  void NoteFieldOutOfOrder();
  bool PutSubfieldBeside(FieldRecord& field, char code, std::string_view text, bool after);
  void RefileLocalField(std::string_view subfield5);
  void SetLeading6(std::string_view text);
  std::string_view ResolveDuplicateOclcNumber(std::string_view text);
  std::string GmdEnding();
  void GiveEndingTo245(const std::string& ending);
  void ReplaceSubfieldText(std::int16_t row, std::string_view text);

  // Fixed fields (fixed_fields.cpp).
  bool OnFixedField() const;

  // Questions to a record (record_tests.cpp, authority_questions.cpp,
  // series_policy.cpp).
  std::string_view TagsToTestForEmptySubfields() const;
  template <typename Test>
  bool TestImage(Test test, std::string& message) const;
  std::int16_t NextLiveField(std::string_view tag, std::int16_t row) const;
  bool IsNationalNumber(std::string_view norm) const;
  bool IsReference(std::string_view tag) const;
  bool ControlSubfieldSays(std::size_t position) const;
  std::string SeriesPolicy(std::string_view tag, std::string_view institution) const;
  bool HoldsVernacular(std::string_view text) const;

  // Comparison forms of a subfield, made when first asked for
  // (normalize/subfield_norms.cpp).  SettleNorms makes all that are pending,
  // before something that they depend on changes.
  void MakeNorms(const FieldRecord& field, SubfieldRecord& subfield);
  SubfieldNorms NormsOf(const FieldRecord& field, const SubfieldRecord& subfield);
  std::string_view NormOfRow(const FieldRecord& field, std::int16_t row);
  void SettleNorms();
  void SettleNorms(const FieldRecord& field);

  // Order (field_order.cpp, subfield_order.cpp).
  OrderKey MakeFieldOrderKey(std::string_view tag, std::string_view indicators,
                             std::string_view text);
  void AppendKeyOfKind(FieldOrderKind kind, const SortedField& field);
  void AppendIndicator2(const SortedField& field);
  bool PairingIsOn() const;
  bool IsLocalNote(std::string_view tag);
  SubfieldOrderTable& SubfieldOrders(FormatFamily family) {
    return subfield_orders_[static_cast<std::size_t>(family)];
  }
  const SubfieldOrderTable& SubfieldOrders(FormatFamily family) const {
    return subfield_orders_[static_cast<std::size_t>(family)];
  }
  void PrepareSubfieldOrder();
  void ReadSubfieldOrder(const std::string& file, FormatFamily family);
  void WriteDebugText(const std::string& file, std::string_view section) const;
  const SubfieldOrder& SubfieldOrderRowFor(const FieldRecord& field) const;
  bool StandsAfterTitle(std::int16_t row) const;
  SubfieldMove CompareSubfieldOrder(std::int16_t row, bool after_title) const;

  // Character sets (charset/).
  void SetCharacterSetOutLetter(char letter, bool lc_pattern);
  void TranslateRecord();
  void TranslateToUtf8();
  void TranslateToMarc8();
  void TranslateOctets(std::int32_t pair);
  void TranslateFromWindows();
  std::string Translate880Field(std::string_view text) const;
  template <typename Skips, typename Translate>
  bool TranslateFields(Skips skips, Translate translate);
  void Delete066();
  void AdjustDoubleMarks();
  void DecomposeAllFields();

  // Cursors (field_cursor.cpp, subfield_cursor.cpp).
  void ClearAtEndFlags();
  void GoForward(std::int16_t row, bool skip_deleted);
  void GoBackward(std::int16_t row, bool skip_deleted);
  void RememberTagList(std::string_view tag_list);
  bool BeginFieldSearch(std::string_view tag_list, std::string_view text);
  bool ContinueFieldSearch(std::string_view tag_list, std::string_view text);
  bool FieldPasses();
  bool FindForward();
  bool FindBackward();
  template <typename Search>
  bool TestField(Search search);
  std::string TagOfRow(std::int16_t row) const;
  bool GoToSubfield(std::int16_t row);
  bool GoToSubfieldForward(std::int16_t row, bool skip_deleted);
  bool GoToSubfieldBackward(std::int16_t row, bool skip_deleted);
  bool BeginSubfieldSearch(std::string_view codes);
  bool SubfieldPasses();
  bool FindSubfieldForward();
  bool FindSubfieldBackward();
  template <typename Search>
  bool TestSubfield(Search search);

  // The image.
  std::string image_;           // as loaded, leader repaired
  std::string data_copy_;       // the data section when it had to be changed
  std::string_view data_;       // the data section: of image_ or of data_copy_
  std::string_view directory_;  // of image_
  std::string leader_;
  std::string out_data_;  // the data section under construction
  std::string is_marc_error_text_;
  std::string character_encoding_scheme_ = " ";

  // The table and its chain.
  FieldTable table_;
  // The data field text at hand: the places of its delimiters and of its first
  // $6, and while it is parsed the order of its subfields (null: none) and whether
  // a $t was among them.
  std::vector<std::uint32_t> delimiters_;
  std::size_t subfield6_ = std::string_view::npos;
  const SubfieldOrder* parse_order_ = nullptr;
  bool parse_saw_title_ = false;
  std::int64_t subfield_steps_ = 0;  // that subfields walked since the record was loaded
  std::int16_t first_field_ = kNoRow;
  std::int16_t last_field_ = kNoRow;
  std::int16_t field_008_ = kNoRow;
  std::int16_t fld008_length_ = 0;

  // Cursors and search memories.
  std::int16_t current_field_ = kNoRow;
  std::int16_t current_subfield_ = kNoRow;
  bool field_found_ = false;
  bool subfield_found_ = false;
  bool field_at_top_ = false;
  bool field_at_bottom_ = false;
  bool subfield_at_top_ = false;
  bool subfield_at_bottom_ = false;
  std::string last_tag_list_;
  std::string last_field_text_;
  std::string last_code_list_;
  std::string last_subfield_text_;

  // Order.
  FieldOrders field_orders_;
  std::array<SubfieldOrderTable, kFormatFamilies> subfield_orders_;
  std::string order_key_;  // the key under construction
  std::string sorting_indicator_for_653_;
  std::string field_order_folder_;

  // Record state.
  char format_code_ = 'B';
  bool is_authority_ = false;
  bool new_record_ = false;
  bool modified_ = false;
  bool in_key_order_ = true;  // the chain stands in ascending order of keys
  bool chain_moved_ = false;  // a field or subfield does not stand where it arrived
  bool fields_out_of_order_ = false;
  bool subfields_out_of_order_ = false;
  bool field_order_changed_ = false;
  bool subfield_order_changed_ = false;
  std::string fields_with_subfields_out_of_order_;

  // Character sets.
  char character_set_in_ = '\0';  // '\0' until set: reads as "U"
  char character_set_out_ = 'U';
  bool lc_pattern_ = false;
  bool record_translated_ = false;
  bool disable_utf8_decomposition_ = false;
  bool characters_decomposed_ = false;
  char normalization_scheme_ = 'V';
  Utf8CharClass char_class_;
  PendingMarks pending_marks_;
  Marc8SetsUsed sets_used_;                  // since the last translation to MARC-8 began
  const OctetTable* octet_table_ = nullptr;  // null: none chosen
  std::string translated_;                   // the field text under construction

  // Settings.
  std::string ini_file_path_;
  std::string debug_file_path_;
  std::string national_authority_institutions_ = "DLC DNLM CMalG-V";
  std::string nuc_;
  std::string empty_test_auth_;
  std::string empty_test_bib_;
  std::string empty_test_hold_;
  bool remove_duplicate_oclc_numbers_ = false;
  bool remove_duplicative_035_fields_ = true;
  bool remove_oclc_alphabetic_prefix_ = false;
  bool oclc_numbers_have_leading_zeroes_ = false;
  bool rda_recast_502_fields_ = false;
  bool force_invalid_indicator_values_ = true;
  bool preserve_leading_numeric_subfields_ = false;
  bool use_double_width_diacritics_ = false;
  bool referring_to_voyager_is_ok_ = false;
  bool test_field_order_ = true;
  bool test_subfield_order_ = true;
  bool make_no_change_ = false;
  bool ignore_subfield_order_ = false;
  bool debug_on_ = false;
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_UTF8_MARC_RECORD_CLASS_H_
