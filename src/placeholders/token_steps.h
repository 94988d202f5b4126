#pragma once

#include "placeholders/expansion_pass.h"

// The steps of one pass, in the order the engine runs them. Each tests its
// tokens against the expression and acts on the running text.
namespace tarnwick::token_steps {

void Literals(ExpansionPass& pass);              // {{-}}, {{separator}}
void Dates(ExpansionPass& pass);                 // file and current date and time
void Counters(ExpansionPass& pass);              // {{count}} and its number systems
void PathAndMediaInfo(ExpansionPass& pass);      // {{parentfolder}}, {{mediainfo}}
void FileAttributes(ExpansionPass& pass);        // {{setFileAttribute_...}}
void Casing(ExpansionPass& pass);                // upper, lower, first char, {{space}}
void Mp3Tags(ExpansionPass& pass);               // {{mp3IDTag...}}
void Mpeg(ExpansionPass& pass);                  // {{mpeg_...}}
void FileAndDrive(ExpansionPass& pass);          // version strings, drive, {{hollowmere}}
void Cleaning(ExpansionPass& pass);              // trim and remove tokens
void PictureAndSystem(ExpansionPass& pass);      // picture size, user, computer
void NumberWordsAndCasing(ExpansionPass& pass);  // number words, proper, camel, respace
void LetterCounters(ExpansionPass& pass);        // {{count2char}}, {{count2alphanumeric}}
void Exif(ExpansionPass& pass);                  // {{get_jpg_exif_...}}
void MarkerAndReverse(ExpansionPass& pass);      // {{set_jpg_to_exif_originaldate}}, {{reverse}}
void Parameterised(ExpansionPass& pass);         // swap, RegEx, Decrypt, Encrypt
void LateText(ExpansionPass& pass);              // swapCasing ... {{ParentFolder[n]}}
void RandomPoolStep(ExpansionPass& pass);        // rebuilds the pool outside a run
void RandomNumbers(ExpansionPass& pass);         // {{random_number_by...}}
void ParentFolderToken(ExpansionPass& pass);     // {{ParentFolder[n]}}, within LateText

}  // namespace tarnwick::token_steps
