" Vim file type plugin
" Language: QUILL inputs
"
" "gggqG" writes the input in the canonical layout, ":make" puts what lint finds into the quickfix list,
" and "gf" opens the file of a reference. All need quill-inp on the PATH.

if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1

let s:before = &cpoptions
set cpoptions&vim

" The format has no comments, and a long line cannot be continued on the next one. A "#" begins a
" command: neither "gq" nor Enter may repeat it.
setlocal comments= commentstring= formatoptions-=t formatoptions-=c formatoptions-=r formatoptions-=o
setlocal textwidth=0
setlocal include=^\\c\\s*\\%(XYZ\\%(TRAJ\\)\\=\\|POST\\)\\s\\+
" The function runs 'formatprg', and keeps the text if that refuses it. Without the function, Vim would put
" the message in place of the text.
setlocal formatprg=quill-inp\ fmt\ --quiet\ --color\ never\ -
setlocal formatexpr=quill_inp#Format()

compiler quill-inp

let b:undo_ftplugin = 'setlocal comments< commentstring< formatoptions< textwidth< include< formatprg<'
      \ . ' formatexpr< makeprg< errorformat<'

let &cpoptions = s:before
unlet s:before
