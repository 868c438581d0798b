autocmd BufNewFile,BufRead *.qin setfiletype qin
