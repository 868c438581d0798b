" Vim compiler file
" Compiler: quill-inp lint
"
" ":compiler quill-inp" and ":make" put the findings into the quickfix list.

if exists('current_compiler')
  finish
endif
let current_compiler = 'quill-inp'

if exists(':CompilerSet') != 2
  command -nargs=* CompilerSet setlocal <args>
endif

let s:before = &cpoptions
set cpoptions&vim

" Advice and the line itself, which lint prints after each finding, are left out.
CompilerSet makeprg=quill-inp\ lint\ --quiet\ --color\ never\ --\ %:S
CompilerSet errorformat=%f:%l:%c:\ %trror:\ %m,%f:%l:%c:\ %tarning:\ %m,%f:%l:%c:\ %tnfo:\ %m,%-G%.%#

let &cpoptions = s:before
unlet s:before
