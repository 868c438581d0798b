" What an author does in Vim: :make, moving through what was found, gggqG on a text that is an input and on
" one that is not, gf. Writes what came of it to $OUTPUT.
set nomore

let s:report = []
function s:Note(...) abort
  call add(s:report, join(a:000, ' '))
endfunction
function s:LastMessage() abort
  return split(execute('messages'), "\n")[-1]
endfunction

edit findings.qin
silent make!
for s:entry in getqflist()
  call s:Note('finding', s:entry.lnum, s:entry.col, s:entry.type, s:entry.text)
endfor
cfirst
call s:Note('file of the first', bufname('%'), 'cursor', line('.'), col('.'))

let s:before = getline(1, '$')
normal! gggqG
call s:Note('a text that would lose something', s:before ==# getline(1, '$') ? 'is kept' : 'is changed')
call s:Note('message', s:LastMessage())

edit! layout.qin
set autoindent
normal! 4G
normal! gqq
call s:Note('one line', getline(4))
call s:Note('message', s:LastMessage())
silent normal! gggqG
call s:Note('modified', &modified, 'line', line('.'))
for s:line in getline(1, '$')
  call s:Note('| ' . s:line)
endfor
normal! ggOx
call s:Note('above a command', getline(1))
undo
normal! gg
execute "normal! o\<CR>x"
call s:Note('after Enter', getline(3))

edit! reference.qin
call search('wat')
normal! gf
call s:Note('gf opens', bufname('%'))

edit! dos.qin
silent normal! gggqG
write
call s:Note('line ends', &fileformat, join(readfile('dos.qin', 'b'), '|'))

call writefile(s:report, $OUTPUT)
qa!
