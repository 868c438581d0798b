" Vim syntax file
" Language: QUILL inputs
"
" Every line is an item that says which lines may follow it, as the library reads them: the header,
" charge and multiplicity, coordinates, post-processing lines. So "A 2 1 3" right after inline
" atoms is shown as the atom that it is, and "#opt" after the header as text.

if exists('b:current_syntax')
  finish
endif

let s:integer = '[+-]\=\d\+'
let s:number = '[+-]\=\%(\%(\d\+\.\=\d*\|\.\d\+\)\%([eEdD][+-]\=\d\+\)\=\|\cinf\%(inity\)\=\|\cnan\)'
let s:end = '\s*$'

" line NAME, PATTERN, FOLLOWERS: a line from its first word on. Of two items that fit, the one that
" is defined later is taken.
" To show the last line, Vim goes through all atoms, and it stops highlighting when that takes more than
" 'redrawtime'. So the patterns ask for the engine that is faster here, and begin with a letter if they
" can: then Vim looks for that letter first, and does not try the pattern at every column of a line.
function s:Line(name, pattern, followers, ...) abort
  execute 'syntax match' a:name '~\%#=1' . a:pattern . '~ contained skipwhite skipempty nextgroup=' .
        \ a:followers . (a:0 ? ' contains=' . a:1 : '')
endfunction

syntax match qinStart ~\%^~ nextgroup=@qinFirst skipwhite skipempty
syntax cluster qinPost contains=qinRaw,qinDropped,qinConstraint,qinScan,qinPostFile
syntax cluster qinCoordinates contains=@qinPost,qinTrajectory,qinXyz,qinAtom
syntax cluster qinFirst contains=@qinCoordinates,qinCharge,@qinHeader
syntax cluster qinHeader contains=qinFlag,qinAssignment,qinList,qinEmpty

" Post-processing lines. The number of words decides: with the right one, something that is not a
" number makes the line one that is dropped; with another one, it is text.
call s:Line('qinRaw', '\S.*$', '@qinPost')
for [s:keyword, s:count] in [['C', 1], ['B', 2], ['A', 3], ['D', 4], ['S', '4,6']]
  call s:Line('qinDropped', '\c' . s:keyword . '\%(\s\+\S\+\)\{' . s:count . '}' . s:end, '@qinPost')
endfor
for [s:keyword, s:count] in [['C', 1], ['B', 2], ['A', 3], ['D', 4]]
  call s:Line('qinConstraint', '\c' . s:keyword . '\%(\s\+' . s:integer . '\)\{' . s:count . '}' .
        \ s:end, '@qinPost', 'qinConstrains')
endfor
call s:Line('qinScan', '\cS\%(\s\+' . s:integer . '\)\{2,4}\s\+' . s:number . '\s\+' . s:integer .
      \ s:end, '@qinPost', 'qinConstrains')
call s:Line('qinPostFile', '\cPOST\s\+\S.*$', '@qinPost', 'qinKeyword,qinPath')

" Coordinates: the first line decides on the form.
call s:Line('qinTrajectory', '\cXYZTRAJ\%(\s.*\)\=$', '@qinPost', 'qinKeyword,qinPath,qinLonely')
call s:Line('qinXyz', '\cXYZ\%(\s.*\)\=$', '@qinPost,qinXyz', 'qinKeyword,qinPath,qinLonely')
call s:Line('qinAtom', '\a\+\%(\s\+' . s:number . '\)\{3}' . s:end, '@qinPost,qinAtom',
      \ 'qinSymbol')
call s:Line('qinCharge', s:integer . '\s\+' . s:integer . s:end, '@qinCoordinates', 'qinNumber')

" Header lines: whichever of "=" and "(" comes first decides on the form.
call s:Line('qinFlag', '#[^=(]*$', '@qinFirst', 'qinHash,qinName')
call s:Line('qinAssignment', '#[^=(]*=.*$', '@qinFirst', 'qinHash,qinName,qinValue')
call s:Line('qinList', '#[^=(]*(.*$', '@qinFirst', 'qinHash,qinName,qinParameters,qinOpen')
call s:Line('qinEmpty', '#' . s:end, '@qinFirst')

" Pieces of a line.
syntax match qinKeyword ~\a\+~ contained
" A line has been recognised as a whole before its words are looked for: each word follows another one.
syntax match qinNumber ~\S\+~ contained nextgroup=qinNumber skipwhite
syntax match qinSymbol ~\a\+~ contained nextgroup=qinNumber skipwhite
syntax match qinConstrains ~\a~ contained nextgroup=qinNumber skipwhite
syntax match qinPath ~\s\@1<=\S.*$~ contained
syntax match qinLonely ~\c\<XYZ\%(TRAJ\)\=\s*$~ contained

syntax match qinHash ~#~ contained
syntax match qinName ~\%(#\s*\)\@<=[^=( \t][^=(]*~ contained contains=qinTask
syntax match qinTask ~\c\%(#\s*\)\@<=\%(sp\|opt\|ts\|freq\|irc\|scan\)\ze\s*\%([=(]\|$\)~ contained
syntax match qinValue ~=.*$~ contained contains=qinBecomes
syntax match qinBecomes ~=~ contained nextgroup=qinString skipwhite
syntax match qinString ~\(["']\).*\1\ze\s*$~ contained

" The list ends at the last ")" of the line; without one it is open to its end.
syntax match qinOpen ~(.*$~ contained contains=@qinEntry,qinUnclosed
syntax match qinParameters ~(.*)~ contained contains=@qinEntry nextgroup=qinLost skipwhite
syntax match qinLost ~\S.*$~ contained
syntax cluster qinEntry contains=qinPunctuation,qinParameter,qinEntryValue
syntax match qinPunctuation ~[(),]~ contained
syntax match qinEquals ~=~ contained
syntax match qinUnclosed ~(~ contained
syntax match qinParameter ~[^(),= \t][^(),=]*~ contained
syntax match qinEntryValue ~=\s*[^,"')]*~ contained contains=qinEquals
syntax match qinEntryValue ~=\s*\(["']\).\{-}\1~ contained contains=qinEquals,qinEntryString
syntax match qinEntryString ~\(["']\).\{-}\1~ contained

syntax sync fromstart

highlight default link qinHash PreProc
highlight default link qinName Identifier
highlight default link qinTask Statement
highlight default link qinBecomes Operator
highlight default link qinEquals Operator
highlight default link qinValue Constant
highlight default link qinString String
highlight default link qinParameter Identifier
highlight default link qinEntryValue Constant
highlight default link qinEntryString String
highlight default link qinPunctuation Delimiter
highlight default link qinUnclosed Error
highlight default link qinLost Error
highlight default link qinEmpty Error
highlight default link qinSymbol Type
highlight default link qinNumber Number
highlight default link qinKeyword Keyword
highlight default link qinConstrains Keyword
highlight default link qinPath String
highlight default link qinLonely Error
highlight default link qinDropped Error
highlight default link qinRaw Comment

let b:current_syntax = 'qin'
